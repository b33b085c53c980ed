// SPDX-License-Identifier: GPL-3.0-or-later
#include "factrow.h"
#include "factspage.h"
#include "fakemachine.h"
#include "storagepage.h"
#include "systemwindow.h"

#include <datatable.h>
#include <messageline.h>
#include <refreshrate.h>
#include <visibletimer.h>

#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class SystemWindowTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void fitsTheSmallestScreen();
    void tapOnStorageOpensItAndBackReturns();
    void enterOnStorageOpensItToo();
    void levelIsAnnounced();
    void levelIsAnnouncedAnewWhenAsked();
    void stepBackAtTheTopLeavesTheWindow();
    void isReadAnewOnlyWhileItCanBeSeen();
    void storedRefreshRateIsUsedFromTheNextAppearance();
    void messageGoesWithTheVisit();

private:
    static FactRow *storageRow(const SystemWindow &window);

    FakeMachine machine;
    std::unique_ptr<SystemWindow> window;
};

void SystemWindowTest::init() {
    QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s));
    RefreshRate::store(std::chrono::seconds(1));
    window = std::make_unique<SystemWindow>(machine.reader());
    window->resize(720, 420);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
}

FactRow *SystemWindowTest::storageRow(const SystemWindow &window) {
    for (FactRow *const row : window.findChildren<FactRow *>()) {
        if (row->text() == "Storage"_L1)
            return row;
    }
    return nullptr;
}

void SystemWindowTest::fitsTheSmallestScreen() {
    window->tellSuccess(u"Report saved"_s);
    QCOMPARE(window->size(), QSize(720, 420));
    QVERIFY(window->minimumSizeHint().height() <= 420);
    QVERIFY(window->minimumSizeHint().width() <= 720);
}

void SystemWindowTest::tapOnStorageOpensItAndBackReturns() {
    QTest::mouseClick(storageRow(*window), Qt::LeftButton);
    QVERIFY(window->findChild<StoragePage *>()->isVisible());
    QCOMPARE(window->findChild<DataTable *>()->model()->rowCount(), 1);
    QVERIFY(!window->stepBack());
    QVERIFY(window->findChild<FactsPage *>()->isVisible());
    QVERIFY(window->stepBack());
}

void SystemWindowTest::enterOnStorageOpensItToo() {
    QTest::keyClick(storageRow(*window), Qt::Key_Return);
    QVERIFY(window->findChild<StoragePage *>()->isVisible());
}

void SystemWindowTest::levelIsAnnounced() {
    const QSignalSpy titles(window.get(), &SystemWindow::setTitle);
    const QSignalSpy backTexts(window.get(), &SystemWindow::setBackButtonText);
    QTest::mouseClick(storageRow(*window), Qt::LeftButton);
    QCOMPARE(titles.last().first().toString(), u"Storage"_s);
    QCOMPARE(window->windowTitle(), u"Storage"_s);
    QCOMPARE(backTexts.last().first().toString(), u"System"_s);
    window->stepBack();
    QCOMPARE(titles.last().first().toString(), u"System"_s);
    QCOMPARE(window->windowTitle(), u"System"_s);
    QCOMPARE(backTexts.last().first().toString(), u"default"_s);
}

void SystemWindowTest::levelIsAnnouncedAnewWhenAsked() {
    QTest::mouseClick(storageRow(*window), Qt::LeftButton);
    const QSignalSpy backTexts(window.get(), &SystemWindow::setBackButtonText);
    window->announceLevel();
    QCOMPARE(backTexts.last().first().toString(), u"System"_s);
}

void SystemWindowTest::stepBackAtTheTopLeavesTheWindow() {
    QVERIFY(window->stepBack());
}

void SystemWindowTest::isReadAnewOnlyWhileItCanBeSeen() {
    const auto *const timer = window->findChild<VisibleTimer *>();
    QVERIFY(timer->isRunning());
    window->hide();
    QVERIFY(!timer->isRunning());
}

void SystemWindowTest::storedRefreshRateIsUsedFromTheNextAppearance() {
    window->hide();
    RefreshRate::store(std::chrono::seconds(5));
    window->show();
    QCOMPARE(window->findChild<VisibleTimer *>()->interval(), std::chrono::milliseconds(5000));
}

void SystemWindowTest::messageGoesWithTheVisit() {
    const auto *const line = window->findChild<MessageLine *>();
    window->tellFailure(u"Report not saved"_s);
    QVERIFY(line->isVisible());
    window->hide();
    window->show();
    QVERIFY(!line->isVisible());
}

QTEST_MAIN(SystemWindowTest)
#include "tst_systemwindow.moc"
