// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakenetwork.h"
#include "networkreader.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class NetworkReaderTest : public QObject {
    Q_OBJECT

private slots:
    void interfacesThatComeAndGoAreFollowed();
    void addressesAreThoseOfTheInterface();
    void rateIsThereFromTheSecondReading();
};

void NetworkReaderTest::interfacesThatComeAndGoAreFollowed() {
    const FakeNetwork network;
    network.plug(u"eth7"_s, 7);
    NetworkReader reader(network.path());
    QCOMPARE(reader.read().size(), 1);
    network.plug(u"usb0"_s, 8);
    QCOMPARE(reader.read().size(), 2);
    network.unplug(u"eth7"_s);
    const QList<MeasuredInterface> left = reader.read();
    QCOMPARE(left.size(), 1);
    QCOMPARE(left.first().interface.name, u"usb0"_s);
}

void NetworkReaderTest::addressesAreThoseOfTheInterface() {
    const FakeNetwork network;
    network.plug(u"lo"_s, 1, "unknown", "0x9");
    network.plug(u"none7"_s, 7);
    const QList<MeasuredInterface> interfaces = NetworkReader(network.path()).read();
    QVERIFY(interfaces[0].interface.addresses.isEmpty());
    QVERIFY(interfaces[1].interface.addresses.contains(u"127.0.0.1"_s));
}

void NetworkReaderTest::rateIsThereFromTheSecondReading() {
    const FakeNetwork network;
    network.plug(u"eth7"_s, 7);
    NetworkReader reader(network.path());
    QVERIFY(!reader.read().first().rate);
    // The clock has to go on by a millisecond between two readings.
    QVERIFY(QTest::qWaitFor([&] { return reader.read().first().rate.has_value(); }));
}

QTEST_GUILESS_MAIN(NetworkReaderTest)
#include "tst_networkreader.moc"
