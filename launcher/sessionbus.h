// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

#include <memory>

/// The launcher's connection to the session bus: that of the process, and once it is lost a new one, as soon as there is
/// a bus at the address again.
///
/// A bus that is not there at the start is not looked for; one that takes the call and does not answer is waited for. Whoever
/// connected to signals does so anew on isBack(). GUI thread only.
class SessionBus : public QObject {
    Q_OBJECT

public:
    /// The one of the process; it goes with the application. The first call begins to connect, and does not wait.
    static SessionBus *instance();
    ~SessionBus() override;

    /// Not connected when there is no bus, or none that answers. The first call waits for the answer.
    QDBusConnection connection();

signals:
    /// There was none for a while, and what was told meanwhile is lost.
    void isBack();

private slots:
    void lose();
    void beginAttempt();
    void endAttempt();

private:
    class Attempt;

    explicit SessionBus(QObject *parent);
    void endFirstAttempt();
    void watch();

    QDBusConnection current;
    QTimer nextAttempt;
    /// Connecting takes its time, which is not the screen's.
    std::unique_ptr<Attempt> attempt;
    bool isFirstAttempt = true;
    int attemptCount = 0;
};
