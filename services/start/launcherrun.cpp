// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherrun.h"

#include <QEventLoop>
#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace {

constexpr int cannotStart = 127;

/// SIGABRT and SIGSEGV sent from outside ask a launcher that hangs for its trace. A fault of our own is not held
/// back by this.
sigset_t passedOnSignals() {
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGQUIT, SIGABRT, SIGSEGV})
        sigaddset(&set, signal);
    return set;
}

/// In the child, before the program is loaded into it.
void prepareChild() {
    const sigset_t set = passedOnSignals();
    ::sigprocmask(SIG_UNBLOCK, &set, nullptr);
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
}

void writeToErrorStream(QByteArrayView bytes) {
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(STDERR_FILENO, bytes.data(), static_cast<size_t>(bytes.size()));
        if (written > 0)
            bytes = bytes.sliced(written);
        else if (errno != EINTR)
            return;
    }
}

} // namespace

void LauncherRun::holdSignals() {
    const sigset_t set = passedOnSignals();
    ::sigprocmask(SIG_BLOCK, &set, nullptr);
}

std::optional<int> LauncherRun::signalWithin(std::chrono::seconds time) {
    const sigset_t set = passedOnSignals();
    const timespec limit{time.count(), 0};
    const int signal = ::sigtimedwait(&set, nullptr, &limit);
    return signal > 0 ? std::optional(signal) : std::nullopt;
}

bool LauncherRun::isStop(int signal) {
    return signal == SIGTERM || signal == SIGINT || signal == SIGHUP || signal == SIGQUIT;
}

LauncherRun::LauncherRun(const QProcessEnvironment &inherited)
    : environment(inherited),
      signalDescriptor([] {
          const sigset_t set = passedOnSignals();
          return ::signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
      }()),
      signalNotifier(new QSocketNotifier(signalDescriptor, QSocketNotifier::Read, this)) {
    // It would name us. Without it the launcher takes the watchdog for its own, which it is.
    environment.remove(QStringLiteral("WATCHDOG_PID"));
    child.setInputChannelMode(QProcess::ForwardedInputChannel);
    child.setProcessChannelMode(QProcess::ForwardedOutputChannel);
    child.setChildProcessModifier(prepareChild);
    connect(&child, &QProcess::readyReadStandardError, this, &LauncherRun::passErrorOutputOn);
}

LauncherRun::~LauncherRun() {
    signalNotifier->setEnabled(false);
    ::close(signalDescriptor);
}

int LauncherRun::run(const QString &program, const QStringList &arguments) {
    QEventLoop untilItEnds;
    connect(&child, &QProcess::finished, &untilItEnds, &QEventLoop::quit);
    child.setProcessEnvironment(environment);
    child.start(program, arguments);
    if (!child.waitForStarted(-1)) {
        std::fprintf(stderr, "%s cannot be started: %s\n", qPrintable(program),
                     qPrintable(child.errorString()));
        return cannotStart;
    }
    // A signal that came before waits in the descriptor.
    connect(signalNotifier, &QSocketNotifier::activated, this, &LauncherRun::passSignalOn);
    if (child.state() != QProcess::NotRunning)
        untilItEnds.exec();
    passErrorOutputOn();
    return statusOfChild();
}

void LauncherRun::passErrorOutputOn() {
    const QByteArray bytes = child.readAllStandardError();
    writeToErrorStream(bytes);
    traceReader.read(bytes);
}

void LauncherRun::passSignalOn() {
    signalfd_siginfo info{};
    while (::read(signalDescriptor, &info, sizeof info) == sizeof info) {
        const int signal = static_cast<int>(info.ssi_signo);
        stopped = stopped || isStop(signal);
        if (child.processId() > 0)
            ::kill(static_cast<pid_t>(child.processId()), signal);
    }
}

int LauncherRun::statusOfChild() const {
    return child.exitStatus() == QProcess::CrashExit ? killedBySignal + child.exitCode() : child.exitCode();
}
