// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherstart.h"

#include "launcherrun.h"
#include "leftoutnotes.h"
#include "restartpause.h"

#include <configfile.h>
#include <zrconfig.h>

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <cstdio>
#include <memory>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// The launcher's directory decides, as it does for the launcher itself: where the shipped plug-ins are, and which
/// configuration stands behind the user's.
QString registerInstallationOf(const QString &launcher) {
    const QString found = launcher.contains(u'/') ? launcher : QStandardPaths::findExecutable(launcher);
    const QDir prefix(QDir::cleanPath(QFileInfo(QFileInfo(found).canonicalFilePath()).path() + "/.."_L1));
    QString plugins = prefix.filePath(u"" ZR_PLUGIN_DIR ""_s);
    QDir::setSearchPaths(u"shipped"_s, {plugins});
    if (!qEnvironmentVariableIsSet("XDG_CONFIG_DIRS"))
        qputenv("XDG_CONFIG_DIRS", "/etc/xdg:" + QFile::encodeName(prefix.filePath(u"etc/xdg"_s)));
    return plugins;
}

void tellLeftOut(const LeftOutPlugin &plugin) {
    std::fprintf(
        stderr,
        "The plug-in %s is left out until the next start of the instrument: %lld crashes within a minute "
        "are put down to it.\n",
        qPrintable(plugin.library), static_cast<long long>(plugin.crashes));
}

} // namespace

LauncherStart::LauncherStart(const QString &program, const QStringList &words, const QString &directory,
                             std::chrono::seconds pauseLimit)
    : launcher(program), arguments(words), runDirectory(directory), longestPause(pauseLimit) {}

int LauncherStart::run() {
    // As it was: the launcher has to find its installation by itself.
    const QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    shippedPlugins = registerInstallationOf(launcher);
    if (!runDirectory.isEmpty())
        state = readState(stateFile());
    if (const std::optional<int> signal = waitAfterFailures())
        return LauncherRun::isStop(*signal) ? 0 : killedBySignal + *signal;
    // Damage is told, and out of the way, before anything is read.
    setDamagedStoreAside(userStoreFile(u"zr-launcher"_s));
    LauncherRun launcherRun(environment);
    return runAndRemember(launcherRun);
}

std::optional<int> LauncherStart::waitAfterFailures() const {
    const std::chrono::seconds pause = restartPause(state.failedRuns, longestPause);
    if (pause <= 0s)
        return std::nullopt;
    std::fprintf(stderr, "The launcher failed %lld times in a row; it is started in %lld s.\n",
                 static_cast<long long>(state.failedRuns), static_cast<long long>(pause.count()));
    return LauncherRun::signalWithin(pause);
}

int LauncherStart::runAndRemember(LauncherRun &launcherRun) {
    const std::chrono::milliseconds beginning = sinceMachineStart();
    const int status = runWithoutLeftOut(launcherRun);
    const bool failed = status != 0 && !launcherRun.wasStopped();
    // A plug-in that is left out takes the reason of the failures along.
    if (!failed || rememberCrash(launcherRun.trace(), status))
        rememberFailedRuns(0);
    else
        rememberFailedRuns(failedRunsAfterFailure(state.failedRuns, sinceMachineStart() - beginning));
    return status;
}

QString LauncherStart::stateFile() const {
    return runDirectory + "/crashes.json"_L1;
}

int LauncherStart::runWithoutLeftOut(LauncherRun &launcherRun) const {
    const QSettings store(u"talvenor"_s, u"zr-launcher"_s);
    const QList<Replacement> replaced = replacements(listedPlugins(store), state.leftOut, ZR_NOTICE_COUNT);
    if (replaced.isEmpty())
        return launcherRun.run(launcher, arguments);

    std::for_each(state.leftOut.cbegin(), state.leftOut.cend(), tellLeftOut);
    writeNotes(runDirectory + "/left-out"_L1, replaced);
    const QString pluginDirectory = ZrConfig::textOf(store.value(u"plugins/path"_s));
    const QString ownHome = QFileInfo(QFileInfo(userStoreFile(u"zr-launcher"_s)).path()).path();
    const StoreCopy copy(ownHome, runDirectory + "/config"_L1,
                         differenceFor(replaced, store, pathOfNotices(pluginDirectory)));
    if (copy.isMade())
        launcherRun.setVariable(u"XDG_CONFIG_HOME"_s, copy.directory());
    else
        std::fputs("The configuration cannot be copied; every plug-in is tried again.\n", stderr);
    return launcherRun.run(launcher, arguments);
}

QString LauncherStart::pathOfNotices(const QString &pluginDirectory) const {
    // Real directories: each ".." of the path is followed in them.
    const QString path = QDir(QFileInfo(pluginDirectory + "/."_L1).canonicalFilePath())
                             .relativeFilePath(QFileInfo(shippedPlugins).canonicalFilePath());
    return path == "."_L1 ? QString() : path + u'/';
}

bool LauncherStart::rememberCrash(const TraceReader &trace, int status) {
    // The launcher leaves out frames without a name. Then it must be the plug-in that was being loaded.
    QStringList modules = trace.modules() << trace.loadedPlugin();
    QString lines = QString::fromLocal8Bit(trace.lines().join('\n'));
    if (status > killedBySignal && trace.modules().isEmpty()) {
        modules = QStringList{trace.unfinishedPlugin()};
        lines = u"No trace: signal %1 ended the launcher while it loaded this plug-in."_s.arg(status -
                                                                                              killedBySignal);
    }
    std::transform(modules.begin(), modules.end(), modules.begin(), resolvedLibrary);
    const QSettings store(u"talvenor"_s, u"zr-launcher"_s);
    const std::optional<QString> culprit = topmostListed(modules, listedPlugins(store));
    if (!culprit || runDirectory.isEmpty())
        return false;
    const std::chrono::milliseconds now = sinceMachineStart();
    state.crashes = withinLastMinute(state.crashes, now);
    state.crashes.append({now, *culprit, lines});
    const std::optional<Crash> last = crashToLeaveOut(state.crashes);
    if (last) {
        state.leftOut.append({last->library, state.crashes.size(), last->trace});
        state.crashes.clear();
        tellLeftOut(state.leftOut.last());
    }
    writeState(stateFile(), state);
    return last.has_value();
}

void LauncherStart::rememberFailedRuns(qint64 count) {
    if (runDirectory.isEmpty() || count == state.failedRuns)
        return;
    state.failedRuns = count;
    writeState(stateFile(), state);
}
