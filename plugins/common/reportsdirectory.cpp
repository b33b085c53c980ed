// SPDX-License-Identifier: GPL-3.0-or-later
#include "reportsdirectory.h"

#include <zrconfig.h>

#include <QDir>

using namespace Qt::Literals::StringLiterals;

QString reportsDirectory() {
    const QString configured = ZrConfig(u"zr-launcher"_s, u"paths"_s, u"main"_s).string();
    // Without a directory of their own the reports would lie among everything else in the home directory.
    const QString directory = configured.isEmpty() ? u"reports"_s : configured;
    return QDir::cleanPath(QDir::homePath() + u'/' + directory);
}
