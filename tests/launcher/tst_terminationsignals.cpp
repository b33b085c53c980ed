// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherfixture.h"
#include "notifysocket.h"

#include <QProcess>
#include <QRegularExpression>

#include <csignal>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int longestStartMs = 20'000;
constexpr int longestEndMs = 20'000;

} // namespace

/// The launcher as a process that is told to stop.
class TerminationSignalsTest : public QObject {
    Q_OBJECT

private slots:
    void signalEndsTheLauncherAndItsChildrenInOrder_data();
    void signalEndsTheLauncherAndItsChildrenInOrder();

private:
    TestConfig config;
};

void TerminationSignalsTest::signalEndsTheLauncherAndItsChildrenInOrder_data() {
    QTest::addColumn<int>("signal");
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<QByteArray>("sign");
    QTest::newRow("SIGTERM") << SIGTERM << u"lasting"_s << QByteArray("child ");
    QTest::newRow("SIGINT") << SIGINT << u"lasting"_s << QByteArray("child ");
    QTest::newRow("SIGTERM while a modal dialog is open")
        << SIGTERM << u"modal"_s << QByteArray("dialog is open");
}

void TerminationSignalsTest::signalEndsTheLauncherAndItsChildrenInOrder() {
    QFETCH(int, signal);
    QFETCH(QString, plugin);
    QFETCH(QByteArray, sign);
    configurePlugins(config, {plugin});
    NotifySocket socket;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"NOTIFY_SOCKET"_s, socket.path());
    QProcess launcher;
    launcher.setProcessEnvironment(environment);
    launcher.start(QStringLiteral(LAUNCHER), QStringList());
    QByteArray errors;
    pid_t child = 0;
    const auto isUp = [&] {
        errors += launcher.readAllStandardError();
        const QRegularExpression line(u"child (\\d+)\n"_s);
        child = line.match(QString::fromLocal8Bit(errors)).captured(1).toInt();
        return child > 0 && errors.contains(sign);
    };
    QTRY_VERIFY_WITH_TIMEOUT(isUp(), longestStartMs);
    QTRY_VERIFY_WITH_TIMEOUT(socket.messages().contains("READY=1"), longestStartMs);
    QCOMPARE(::kill(child, 0), 0);

    ::kill(static_cast<pid_t>(launcher.processId()), signal);
    QVERIFY(launcher.waitForFinished(longestEndMs));
    const bool childLives = ::kill(child, 0) == 0;
    if (childLives)
        ::kill(child, SIGKILL);
    QCOMPARE(launcher.exitStatus(), QProcess::NormalExit);
    QCOMPARE(launcher.exitCode(), 0);
    QVERIFY(!childLives);
    QCOMPARE(socket.messages().last(), "STOPPING=1");
}

QTEST_GUILESS_MAIN(TerminationSignalsTest)
#include "tst_terminationsignals.moc"
