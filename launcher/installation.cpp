// SPDX-License-Identifier: GPL-3.0-or-later
#include "installation.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::Literals::StringLiterals;

void registerInstallation() {
    const QDir prefix(QDir::cleanPath(QCoreApplication::applicationDirPath() + "/.."_L1));
    QDir::setSearchPaths(u"shipped"_s, {prefix.filePath(u"" ZR_PLUGIN_DIR ""_s)});
    if (!qEnvironmentVariableIsSet("XDG_CONFIG_DIRS"))
        qputenv("XDG_CONFIG_DIRS", "/etc/xdg:" + QFile::encodeName(prefix.filePath(u"etc/xdg"_s)));
}
