// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "trace.h"

#include <QObject>
#include <QProcess>

#include <chrono>
#include <optional>

class QSocketNotifier;

/// Added to a signal's number where a status tells of the signal that ended something.
constexpr int killedBySignal = 128;

/// One run of the launcher as a child process.
///
/// What the child writes to standard error comes out at ours unchanged. Signals that ask to end come to us and are
/// passed on; so are those with which a supervisor asks for a trace.
class LauncherRun : public QObject {
    Q_OBJECT

public:
    /// Keeps the signals that are passed on for `LauncherRun`. To be called before any thread is started.
    static void holdSignals();

    /// Waits so long, or until one of these signals comes: its number. It is consumed.
    static std::optional<int> signalWithin(std::chrono::seconds time);
    /// Whether the signal asks to end, rather than for a trace.
    static bool isStop(int signal);

    explicit LauncherRun(const QProcessEnvironment &environment);
    ~LauncherRun() override;

    /// Runs the program to its end. Its exit status, 128 + N when signal N killed it, 127 when it cannot be
    /// started.
    int run(const QString &program, const QStringList &arguments);
    void setVariable(const QString &name, const QString &value) { environment.insert(name, value); }

    /// The child was asked to end.
    bool wasStopped() const { return stopped; }
    const TraceReader &trace() const { return traceReader; }

private:
    void passErrorOutputOn();
    void passSignalOn();
    int statusOfChild() const;

    QProcessEnvironment environment;
    QProcess child;
    TraceReader traceReader;
    int signalDescriptor;
    QSocketNotifier *signalNotifier;
    bool stopped = false;
};
