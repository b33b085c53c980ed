// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardaddress.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class CardAddressTest : public QObject {
    Q_OBJECT

private slots:
    void addressIsRead_data();
    void addressIsRead();
    void otherTextIsNoAddress_data();
    void otherTextIsNoAddress();
};

void CardAddressTest::addressIsRead_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("place");
    QTest::addColumn<int>("number");
    QTest::newRow("socket") << u"unix:/run/card"_s << int(CardAddress::Unix) << u"/run/card"_s << 0;
    QTest::newRow("socket with a colon")
        << u"unix:/run/a:b"_s << int(CardAddress::Unix) << u"/run/a:b"_s << 0;
    QTest::newRow("host number") << u"tcp:10.0.0.2:4000"_s << int(CardAddress::Tcp) << u"10.0.0.2"_s << 4000;
    QTest::newRow("host name") << u"tcp:card-1:1"_s << int(CardAddress::Tcp) << u"card-1"_s << 1;
    QTest::newRow("highest port") << u"tcp:h:65535"_s << int(CardAddress::Tcp) << u"h"_s << 65535;
    QTest::newRow("IPv6 number") << u"tcp:[::1]:4000"_s << int(CardAddress::Tcp) << u"::1"_s << 4000;
    QTest::newRow("device") << u"serial:/dev/ttyS1"_s << int(CardAddress::Serial) << u"/dev/ttyS1"_s
                            << 115200;
    QTest::newRow("device with baud rate")
        << u"serial:/dev/ttyS1:9600"_s << int(CardAddress::Serial) << u"/dev/ttyS1"_s << 9600;
}

void CardAddressTest::addressIsRead() {
    QFETCH(QString, text);
    const std::optional<CardAddress> address = cardAddress(text);
    QVERIFY(address);
    QTEST(int(address->kind), "kind");
    QTEST(address->place, "place");
    QTEST(address->number, "number");
}

void CardAddressTest::otherTextIsNoAddress_data() {
    QTest::addColumn<QString>("text");
    for (const QString &text : {u""_s,
                                u"x"_s,
                                u":"_s,
                                u"unix"_s,
                                u"unix:"_s,
                                u"UNIX:/a"_s,
                                u"tcp:"_s,
                                u"tcp:host"_s,
                                u"tcp:host:"_s,
                                u"tcp::80"_s,
                                u"tcp:host:0"_s,
                                u"tcp:host:65536"_s,
                                u"tcp:host:-1"_s,
                                u"tcp:host:80x"_s,
                                u"serial:"_s,
                                u"serial::9600"_s,
                                u"serial:/dev/x:"_s,
                                u"serial:/dev/x:fast"_s,
                                u"serial:/dev/x:99999999999"_s,
                                u"usb:1"_s})
        QTest::newRow(qPrintable(u'"' + text + u'"')) << text;
}

void CardAddressTest::otherTextIsNoAddress() {
    QFETCH(QString, text);
    QVERIFY(!cardAddress(text));
}

QTEST_GUILESS_MAIN(CardAddressTest)
#include "tst_cardaddress.moc"
