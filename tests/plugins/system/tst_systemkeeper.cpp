// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakemachine.h"
#include "systemkeeper.h"

#include <reportsdirectory.h>
#include <zrconfig.h>

#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class SystemKeeperTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void savesButDoesNotLoad();
    void savedReportLiesInTheConfiguredDirectory();
    void reportsOfOneSecondAreAllKept();
    void failureIsToldInOneLine();

private:
    FakeMachine machine;
};

void SystemKeeperTest::init() {
    QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s));
    ZrConfig(u"zr-launcher"_s, u"paths"_s, u"main"_s) = u"saved"_s;
    QDir(QDir::homePath() + u"/saved"_s).removeRecursively();
    QFile::remove(QDir::homePath() + u"/saved"_s);
}

void SystemKeeperTest::savesButDoesNotLoad() {
    SystemKeeper keeper(machine.reader());
    QVERIFY(keeper.canBeSaved());
    QVERIFY(!keeper.canBeLoaded());
}

void SystemKeeperTest::savedReportLiesInTheConfiguredDirectory() {
    SystemKeeper keeper(machine.reader());
    const QSignalSpy saved(&keeper, &SystemKeeper::saved);
    keeper.save();
    QCOMPARE(saved.count(), 1);
    const QStringList files = QDir(QDir::homePath() + u"/saved"_s).entryList(QDir::Files);
    QCOMPARE(files.size(), 1);
    QVERIFY2(QRegularExpression(u"^system-\\d{8}-\\d{6}\\.txt$"_s).match(files.first()).hasMatch(),
             qPrintable(files.first()));
    QVERIFY(saved.first().first().toString().contains(files.first()));
}

void SystemKeeperTest::reportsOfOneSecondAreAllKept() {
    SystemKeeper keeper(machine.reader());
    for (int number = 0; number < 5; ++number)
        keeper.save();
    QCOMPARE(QDir(reportsDirectory()).entryList(QDir::Files).size(), 5);
}

void SystemKeeperTest::failureIsToldInOneLine() {
    QFile file(QDir::homePath() + u"/saved"_s);
    QVERIFY(file.open(QIODevice::WriteOnly));
    SystemKeeper keeper(machine.reader());
    const QSignalSpy saved(&keeper, &SystemKeeper::saved);
    const QSignalSpy failed(&keeper, &SystemKeeper::failed);
    keeper.save();
    QCOMPARE(saved.count(), 0);
    QCOMPARE(failed.count(), 1);
    QVERIFY(!failed.first().first().toString().contains(u'\n'));
}

QTEST_GUILESS_MAIN(SystemKeeperTest)
#include "tst_systemkeeper.moc"
