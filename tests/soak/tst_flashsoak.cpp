// SPDX-License-Identifier: GPL-3.0-or-later
#include "filesbelow.h"
#include "flash/flashdialog.h"
#include "holdings.h"
#include "testconfig.h"
#include "ui/launcherwindow.h"

#include <styleoverride.h>
#include <warningwindow.h>

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int rounds = 3000;
constexpr int warmUpRounds = 100;
constexpr int roundsPerExport = 60;
constexpr int longestRoundMs = 30'000;
constexpr qint64 mostGrowthBytes = 2 * 1024 * 1024;

} // namespace

/// Thousands of drives come and go over the bus, with every answer to the question; nothing of them is left.
class FlashSoakTest : public QObject {
    Q_OBJECT

public:
    /// Before anything reads the store. It is flushed to the disk four times a round; a disk in memory is fast.
    static void initMain() {
        static const QTemporaryDir directory(u"/dev/shm/flashsoak-XXXXXX"_s);
        if (directory.isValid())
            qputenv("XDG_CONFIG_HOME", directory.path().toLocal8Bit());
    }

private slots:
    void threeThousandDrivesLeaveNothingBehind();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum Answer { No, Removal, Yes };

    void announce(const QString &signal) const;
    void answer();
    bool insertAndRemove(int round);
    FlashDialog *dialog() const { return window->findChild<FlashDialog *>(); }
    WarningWindow *warning() const { return dialog()->findChild<WarningWindow *>(); }
    void press(const QString &text) const;

    /// The mount service's end of the bus.
    QDBusConnection service = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"service"_s);
    std::unique_ptr<LauncherWindow> window;
    Answer nextAnswer = No;
    int closings = 0;
};

void FlashSoakTest::announce(const QString &signal) const {
    QDBusMessage message = QDBusMessage::createSignal(u"/"_s, u"zr.flash"_s, signal);
    message.setArguments({u"sda1"_s});
    service.send(message);
}

void FlashSoakTest::press(const QString &text) const {
    for (QPushButton *const button : dialog()->findChildren<QPushButton *>()) {
        if (button->text() == text)
            button->click();
    }
}

bool FlashSoakTest::eventFilter(QObject *watched, QEvent *event) {
    // The question has an event loop of its own, and the answer has to come from there.
    if (event->type() == QEvent::Show)
        QMetaObject::invokeMethod(this, &FlashSoakTest::answer, Qt::QueuedConnection);
    else if (event->type() == QEvent::Hide)
        ++closings;
    return QObject::eventFilter(watched, event);
}

void FlashSoakTest::answer() {
    if (nextAnswer == Removal)
        announce(u"removed"_s);
    else
        press(nextAnswer == Yes ? u"Yes"_s : u"No"_s);
}

bool FlashSoakTest::insertAndRemove(int round) {
    nextAnswer = round % roundsPerExport == 0 ? Yes : round % 2 == 0 ? No : Removal;
    const int before = closings;
    announce(u"inserted"_s);
    if (!QTest::qWaitFor([&] { return closings > before; }, longestRoundMs))
        return false;
    if (nextAnswer != Removal)
        announce(u"removed"_s);
    // After an export the next removal is told to the user.
    if (warning() && warning()->isVisible())
        warning()->accept();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return !dialog()->isVisible();
}

void FlashSoakTest::threeThousandDrivesLeaveNothingBehind() {
    // As the launcher dresses itself: the plain style keeps a picture of every button it ever drew.
    QApplication::setStyle(new StyleOverride(QApplication::style()));
    TestConfig config;
    config.setPersistent(u"none"_s);
    config.set(u"paths/main"_s, u"reports"_s);
    writeFiles(QDir::homePath(), {{"reports/1", "one"}, {"reports/traces/2", "two"}});
    const QString drive = qEnvironmentVariable("ZR_SYSROOT") + "/media/sda1"_L1;
    QVERIFY(QDir().mkpath(drive));
    window = std::make_unique<LauncherWindow>();
    window->resize(800, 480);
    window->show();
    dialog()->installEventFilter(this);

    for (int round = 0; round < warmUpRounds; ++round)
        QVERIFY2(insertAndRemove(round), qPrintable(QString::number(round)));
    const Holdings before = holdingsOf(*window);
    for (int round = warmUpRounds; round < rounds; ++round)
        QVERIFY2(insertAndRemove(round), qPrintable(QString::number(round)));
    const Holdings after = holdingsOf(*window);

    QCOMPARE(closings, rounds);
    QCOMPARE(readFiles(drive + "/reports"_L1), readFiles(QDir::homePath() + "/reports"_L1));
    const QString difference = differenceBetween(before, after, mostGrowthBytes);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

QTEST_MAIN(FlashSoakTest)
#include "tst_flashsoak.moc"
