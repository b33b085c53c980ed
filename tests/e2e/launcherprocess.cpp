// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherprocess.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QTest>

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

bool isProbeThere() {
    return QDBusConnection::sessionBus().interface()->isServiceRegistered(u"zr.probe"_s);
}

/// What the installed simulator prints; nothing when it fails, which it tells on standard error itself.
std::optional<QString>
answerOfTheSimulator(const QString &words,
                     const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment()) {
    QProcess simulator;
    simulator.setProcessEnvironment(environment);
    simulator.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    simulator.start(QStringLiteral(E2E_TREE "/bin/zr-simulator"), words.split(u' '));
    const bool isDone = simulator.waitForFinished() && simulator.exitStatus() == QProcess::NormalExit &&
                        simulator.exitCode() == 0;
    if (!isDone)
        return std::nullopt;
    return QString::fromUtf8(simulator.readAllStandardOutput());
}

} // namespace

LauncherProcess::LauncherProcess()
    : program(QStringLiteral(E2E_TREE "/bin/zr-launcher")),
      environment(QProcessEnvironment::systemEnvironment()) {}

LauncherProcess::~LauncherProcess() {
    stop();
}

bool LauncherProcess::start(const QStringList &arguments) {
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    const bool answers = QTest::qWaitFor(
        [this] { return isProbeThere() || process.state() == QProcess::NotRunning; }, longestStartMs);
    if (!answers || !isProbeThere())
        return false;
    probe = std::make_unique<QDBusInterface>(u"zr.probe"_s, u"/"_s, u"zr.probe"_s);
    // The probe is loaded before the window is shown.
    return QTest::qWaitFor([this] { return isVisible(u"pageLauncher"_s); }, longestStartMs);
}

int LauncherProcess::stop(int signal) {
    if (process.state() != QProcess::NotRunning)
        ::kill(static_cast<pid_t>(process.processId()), signal);
    const int status = waitForEnd();
    // The bus drops the name a little later; the next launcher needs it.
    const bool isGone = QTest::qWaitFor([] { return !isProbeThere(); });
    return isGone ? status : -1;
}

int LauncherProcess::waitForEnd() {
    if (process.state() != QProcess::NotRunning)
        process.waitForFinished();
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

int LauncherProcess::runToEnd(const QStringList &arguments) {
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    return waitForEnd();
}

bool LauncherProcess::hasChildren() const {
    QFile children(u"/proc/%1/task/%1/children"_s.arg(process.processId()));
    return children.open(QIODevice::ReadOnly) && !children.readAll().isEmpty();
}

void LauncherProcess::preload(const QString &library) {
    environment.insert(u"LD_PRELOAD"_s, library);
    // The sanitizers want to come first themselves.
    environment.insert(u"ASAN_OPTIONS"_s,
                       environment.value(u"ASAN_OPTIONS"_s) + ":verify_asan_link_order=0"_L1);
}

void LauncherProcess::setScreenHeight(int pixels) {
    const QString root = environment.value(u"ZR_SYSROOT"_s);
    QDir().mkpath(root + "/dev"_L1);
    QFile file(root + "/dev/fb0"_L1);
    if (file.open(QIODevice::WriteOnly))
        file.write(QByteArray::number(pixels));
    preload(QStringLiteral(E2E_SCREEN));
}

std::chrono::milliseconds LauncherProcess::slowestPress(const QStringList &namesOrTexts,
                                                        std::chrono::milliseconds period) {
    std::chrono::milliseconds slowest{};
    const QDeadlineTimer end(period);
    while (!end.hasExpired()) {
        for (const QString &nameOrText : namesOrTexts) {
            QElapsedTimer clock;
            clock.start();
            if (!press(nameOrText))
                return std::chrono::milliseconds::max();
            slowest = std::max(slowest, std::chrono::milliseconds(clock.elapsed()));
        }
        // Takes what the launcher writes to its standard error, which would fill the pipe.
        QCoreApplication::processEvents();
    }
    return slowest;
}

bool LauncherProcess::simulate(const QString &words, const QProcessEnvironment &environment) {
    return answerOfTheSimulator(words, environment).has_value();
}

bool LauncherProcess::removeCards() {
    const std::optional<QString> cards = answerOfTheSimulator(u"card list"_s);
    if (!cards)
        return false;
    const QStringList names = cards->split(u'\n', Qt::SkipEmptyParts);
    return std::all_of(names.cbegin(), names.cend(),
                       [](const QString &name) { return simulate("card remove "_L1 + name); });
}

QByteArray LauncherProcess::errors() {
    errorBytes += process.readAllStandardError();
    return errorBytes;
}
