// SPDX-License-Identifier: GPL-3.0-or-later
#include "slowexport.h"

#include "filesbelow.h"
#include "launcherprocess.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What a test preloads for the launcher is not for rsync: its limit goes by the machine's own clock.
const QByteArray slowRsync = "exec env -u LD_PRELOAD /usr/bin/rsync --bwlimit=100 \"$@\"";

constexpr int reportCount = 8;
constexpr int reportBytes = 50'000;

} // namespace

SlowExport::SlowExport(LauncherProcess &launcher)
    : exporter(launcher), reports(QDir::homePath() + "/reports"_L1) {
    programs.put(u"rsync"_s, slowRsync);
    exporter.environment.insert(u"PATH"_s, qEnvironmentVariable("PATH"));
    FilesBelow files;
    for (int i = 0; i < reportCount; ++i)
        files[QByteArray::number(i)] = QByteArray(reportBytes, static_cast<char>('a' + i));
    writeFiles(reports.path(), files);
}

int SlowExport::begin() const {
    if (!QTest::qWaitFor([this] { return exporter.press(u"Да"_s); }))
        return 0;
    int progress = 0;
    const bool isInTheMiddle = QTest::qWaitFor([&] {
        progress = exporter.progress();
        return progress > 0 && progress < 100;
    });
    return isInTheMiddle ? progress : 0;
}

bool SlowExport::isWholeAt(const QString &mountPoint) const {
    return readFiles(mountPoint + "/reports"_L1) == readFiles(reports.path());
}
