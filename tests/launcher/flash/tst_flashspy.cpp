// SPDX-License-Identifier: GPL-3.0-or-later
#include "flash/flashspy.h"

#include "bussender.h"
#include "sessionbus.h"
#include "testconfig.h"
#include "zrlauncherconfig.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

class FlashSpyTest : public QObject {
    Q_OBJECT

private slots:
    void init();

    void storeIsClearedAtTheStart();
    void partitionIsAccepted_data();
    void partitionIsAccepted();
    void secondPartitionIsRefused();
    void anyRemovalClearsTheDrive();
    void removalWithoutADriveIsToldAsWell();
    void anotherDriveIsAcceptedAfterARemoval();
    void mountErrorNamesTheSetBits_data();
    void mountErrorNamesTheSetBits();
    void mountErrorKeepsTheDrive();
    void signalsOnTheBusAreFollowed();
    void otherSignalsOnTheBusAreNotHeard_data();
    void otherSignalsOnTheBusAreNotHeard();

private:
    static QString dir() { return ZrLauncherConfig(u"flash"_s, u"dir"_s).string(); }
    static QString save() { return ZrLauncherConfig(u"flash"_s, u"save"_s).string(); }
    void send(const QString &name, const QVariant &value) const {
        QVERIFY(sender.send(u"/"_s, u"zr.flash"_s, name, {value}));
    }

    const BusSender sender;
    TestConfig config;
    std::unique_ptr<FlashSpy> spy;
    std::unique_ptr<QSignalSpy> inserted;
    std::unique_ptr<QSignalSpy> removed;
    std::unique_ptr<QSignalSpy> failed;
};

void FlashSpyTest::init() {
    config = TestConfig();
    spy = std::make_unique<FlashSpy>(nullptr);
    QTRY_VERIFY(SessionBus::instance()->connection().isConnected());
    inserted = std::make_unique<QSignalSpy>(spy.get(), &FlashSpy::flashInserted);
    removed = std::make_unique<QSignalSpy>(spy.get(), &FlashSpy::flashRemoved);
    failed = std::make_unique<QSignalSpy>(spy.get(), &FlashSpy::mountFailed);
}

void FlashSpyTest::storeIsClearedAtTheStart() {
    config.set(u"flash/dir"_s, u"/media/sda1"_s);
    config.set(u"flash/save"_s, true);
    const FlashSpy another(nullptr);
    QCOMPARE(dir(), QString());
    QCOMPARE(save(), u"false"_s);
    QCOMPARE(another.flashDir(), QString());
}

void FlashSpyTest::partitionIsAccepted_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isAccepted");
    QTest::newRow("partition") << u"sda1"_s << true;
    QTest::newRow("two digits") << u"sda12"_s << true;
    QTest::newRow("one character before the digit") << u"a1"_s << true;
    QTest::newRow("memory card") << u"mmcblk0p1"_s << true;
    QTest::newRow("digits alone") << u"12"_s << true;
    QTest::newRow("Cyrillic") << u"диск1"_s << true;
    QTest::newRow("per cent") << u"%1"_s << true;
    QTest::newRow("whole drive") << u"sda"_s << false;
    QTest::newRow("digit alone") << u"1"_s << false;
    QTest::newRow("text behind the digit") << u"sda1 "_s << false;
    QTest::newRow("line feed behind the digit") << u"sda1\n"_s << false;
    QTest::newRow("digit of another script") << u"sda\u0661"_s << false;
    QTest::newRow("nothing") << QString() << false;
}

void FlashSpyTest::partitionIsAccepted() {
    QFETCH(QString, name);
    QFETCH(bool, isAccepted);
    spy->addFlash(name);
    const QString directory = isAccepted ? "/media/"_L1 + name : QString();
    QCOMPARE(inserted->size(), isAccepted ? 1 : 0);
    QCOMPARE(inserted->value(0).value(0).toString(), isAccepted ? name : QString());
    QCOMPARE(spy->flashDir(), directory);
    QCOMPARE(spy->flashName(), directory);
    QCOMPARE(dir(), directory);
    QCOMPARE(failed->size(), 0);
}

void FlashSpyTest::secondPartitionIsRefused() {
    spy->addFlash(u"sda1"_s);
    for (const QString &name : {u"sdb1"_s, u"sda1"_s, u"sdb"_s})
        spy->addFlash(name);
    QCOMPARE(inserted->size(), 1);
    QCOMPARE(failed->size(), 3);
    QCOMPARE(failed->at(0).at(0).toString(),
             u"Only one flash card can be used. Please, remove currently installed"_s);
    QCOMPARE(spy->flashDir(), u"/media/sda1"_s);
    QCOMPARE(dir(), u"/media/sda1"_s);
}

void FlashSpyTest::anyRemovalClearsTheDrive() {
    spy->addFlash(u"sda1"_s);
    config.set(u"flash/save"_s, true);
    QString dirWhenTold = u"not told"_s;
    connect(spy.get(), &FlashSpy::flashRemoved, this, [&] { dirWhenTold = spy->flashDir(); });
    spy->removeFlash(u"sdb1"_s);
    QCOMPARE(removed->size(), 1);
    QCOMPARE(dirWhenTold, QString());
    QCOMPARE(dir(), QString());
    QCOMPARE(save(), u"false"_s);
}

void FlashSpyTest::removalWithoutADriveIsToldAsWell() {
    spy->removeFlash(u"sda1"_s);
    QCOMPARE(removed->size(), 1);
}

void FlashSpyTest::anotherDriveIsAcceptedAfterARemoval() {
    spy->addFlash(u"sda1"_s);
    spy->removeFlash(u"sda1"_s);
    spy->addFlash(u"sdb1"_s);
    QCOMPARE(inserted->size(), 2);
    QCOMPARE(dir(), u"/media/sdb1"_s);
    QCOMPARE(failed->size(), 0);
}

void FlashSpyTest::mountErrorNamesTheSetBits_data() {
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("message");
    QTest::newRow("none") << 0 << u"Error 0:\n"_s;
    QTest::newRow("1") << 1 << u"Error 1:\nincorrect invocation or permissions\n"_s;
    QTest::newRow("2") << 2
                       << u"Error 2:\nsystem error (out of memory, cannot fork, no more loop devices)\n"_s;
    QTest::newRow("4") << 4 << u"Error 4:\ninternal mount bug\n"_s;
    QTest::newRow("8") << 8 << u"Error 8:\nuser interrupt\n"_s;
    QTest::newRow("16") << 16 << u"Error 16:\nproblems writing or locking /etc/mtab\n"_s;
    QTest::newRow("two") << 96 << u"Error 96:\nmount failure\nsome mount succeeded\n"_s;
    QTest::newRow("no meaning") << 128 << u"Error 128:\n"_s;
    QTest::newRow("far bit") << 256 + 32 << u"Error 288:\nmount failure\n"_s;
    QTest::newRow("negative") << std::numeric_limits<int>::min() << u"Error -2147483648:\n"_s;
}

void FlashSpyTest::mountErrorNamesTheSetBits() {
    QFETCH(int, code);
    spy->brokeFlash(code);
    QCOMPARE(failed->size(), 1);
    QTEST(failed->at(0).at(0).toString(), "message");
}

void FlashSpyTest::mountErrorKeepsTheDrive() {
    spy->addFlash(u"sda1"_s);
    spy->brokeFlash(32);
    QCOMPARE(spy->flashDir(), u"/media/sda1"_s);
    QCOMPARE(removed->size(), 0);
}

void FlashSpyTest::signalsOnTheBusAreFollowed() {
    send(u"inserted"_s, u"sda1"_s);
    QTRY_COMPARE(inserted->size(), 1);
    send(u"removed"_s, u"sda1"_s);
    QTRY_COMPARE(removed->size(), 1);
    send(u"mountFailed"_s, 32);
    QTRY_COMPARE(failed->size(), 1);
}

void FlashSpyTest::otherSignalsOnTheBusAreNotHeard_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("interface");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariantList>("arguments");
    const QVariantList right{u"sdx1"_s};
    QTest::newRow("path") << u"/flash"_s << u"zr.flash"_s << u"inserted"_s << right;
    QTest::newRow("interface") << u"/"_s << u"zr.flashes"_s << u"inserted"_s << right;
    QTest::newRow("member") << u"/"_s << u"zr.flash"_s << u"Inserted"_s << right;
    QTest::newRow("no argument") << u"/"_s << u"zr.flash"_s << u"inserted"_s << QVariantList();
    QTest::newRow("number for a name") << u"/"_s << u"zr.flash"_s << u"inserted"_s << QVariantList{1};
    QTest::newRow("name for a number")
        << u"/"_s << u"zr.flash"_s << u"mountFailed"_s << QVariantList{u"32"_s};
}

void FlashSpyTest::otherSignalsOnTheBusAreNotHeard() {
    QFETCH(QString, path);
    QFETCH(QString, interface);
    QFETCH(QString, name);
    QFETCH(QVariantList, arguments);
    QVERIFY(sender.send(path, interface, name, arguments));
    // The bus keeps the order.
    send(u"inserted"_s, u"sda1"_s);
    QTRY_VERIFY(!inserted->isEmpty());
    QCOMPARE(inserted->first().at(0).toString(), u"sda1"_s);
    QCOMPARE(failed->size(), 0);
}

QTEST_GUILESS_MAIN(FlashSpyTest)
#include "tst_flashspy.moc"
