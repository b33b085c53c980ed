// SPDX-License-Identifier: GPL-3.0-or-later
#include "crashhandler.h"

#include <QDebug>
#include <QRegularExpression>

#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cxxabi.h>
#include <execinfo.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char signature[] = "void crit_err_hdlr(int, siginfo_t*, void*)";
constexpr int mostFrames = 50;
constexpr unsigned int traceLimitSeconds = 3;
constexpr unsigned int bareFramesLimitSeconds = 1;
/// Whatever can come of telling the trace in a broken process, and the alarm that limits its time.
constexpr std::array guardedSignals = {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL, SIGALRM};

enum class Told { Nothing, Signature, Frames };

// Shared with the signal handlers: no lock is allowed there.
std::atomic<Told> told = Told::Nothing;
std::atomic<pid_t> tracingThread = 0;
std::atomic<bool> isGivingUp = false;
std::array<void *, mostFrames> frames;
std::atomic<int> frameCount = 0;

void writeSignature() {
    [[maybe_unused]] const ssize_t written =
        ::write(STDERR_FILENO, signature, sizeof signature - 1) + ::write(STDERR_FILENO, "\n", 1);
}

/// Tells what is left to tell without allocating, and ends the process without running any more of it.
/// Resolving the names takes the loader's lock, hence another alarm; async-signal-safe but for that.
[[noreturn]] void giveUp() {
    if (!isGivingUp.exchange(true)) {
        ::alarm(bareFramesLimitSeconds);
        if (told == Told::Nothing)
            writeSignature();
        if (told != Told::Frames && frameCount > 1)
            ::backtrace_symbols_fd(frames.data() + 1, frameCount - 1, STDERR_FILENO);
    }
    ::_exit(1);
}

void guard(int signal) {
    // Another thread that faults meanwhile waits for the end of the one that is told.
    if (signal == SIGSEGV && ::gettid() != tracingThread) {
        for (;;)
            ::pause();
    }
    giveUp();
}

/// From here on nothing keeps the process from ending with status 1.
void armGuard() {
    struct sigaction action = {};
    action.sa_handler = guard;
    // The guard itself may fault or get stuck.
    action.sa_flags = SA_NODEFER;
    sigset_t unblocked;
    ::sigemptyset(&unblocked);
    for (const int signal : guardedSignals) {
        ::sigaction(signal, &action, nullptr);
        ::sigaddset(&unblocked, signal);
    }
    ::pthread_sigmask(SIG_UNBLOCK, &unblocked, nullptr);
    ::alarm(traceLimitSeconds);
}

void waitForTheEndUnlessFirst() {
    pid_t nobody = 0;
    if (tracingThread.compare_exchange_strong(nobody, ::gettid()))
        return;
    for (;;)
        ::pause();
}

void writeFrame(const QRegularExpression &namedFrame, int number, const char *frame) {
    const QRegularExpressionMatch match = namedFrame.match(QString::fromLocal8Bit(frame));
    if (!match.hasMatch())
        return;
    char *const name =
        abi::__cxa_demangle(match.captured(2).toLocal8Bit().constData(), nullptr, nullptr, nullptr);
    std::fprintf(stderr, "[bt]: (%d) %s %s\n", number, frame, name);
    told = Told::Frames;
    std::free(name);
}

} // namespace

void crit_err_hdlr(int, siginfo_t *, void *) {
    waitForTheEndUnlessFirst();
    armGuard();
    frameCount = ::backtrace(frames.data(), mostFrames);
    qDebug("%s", signature);
    told = Told::Signature;
    char **const texts = ::backtrace_symbols(frames.data(), frameCount);
    const QRegularExpression namedFrame(uR"(([^(]+)\(([^)^+]+)(\+[^)]+)\)\s(\[[^]]+\]))"_s);
    for (int i = 1; texts && i < frameCount; ++i)
        writeFrame(namedFrame, i, texts[i]);
    std::free(texts);
    std::exit(1);
}

void installCrashHandler() {
    // The first call loads the unwinder, which allocates; later ones do not.
    ::backtrace(frames.data(), 1);
    struct sigaction action = {};
    action.sa_sigaction = crit_err_hdlr;
    action.sa_flags = SA_SIGINFO | SA_RESTART;
    ::sigemptyset(&action.sa_mask);
    if (::sigaction(SIGSEGV, &action, nullptr) == 0)
        return;
    std::fprintf(stderr, "error setting signal handler for %d (%s)\n", SIGSEGV, ::strsignal(SIGSEGV));
    std::exit(1);
}
