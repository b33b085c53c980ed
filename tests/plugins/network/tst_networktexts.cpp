// SPDX-License-Identifier: GPL-3.0-or-later
#include "networktexts.h"

#include <QSet>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class NetworkTextsTest : public QObject {
    Q_OBJECT

private slots:
    void statesAreToldApartInWords();
    void speedIsToldOfALink();
    void speedIsNotToldWithoutALink();
    void unknownRateIsADash();
    void addressesAreLines_data();
    void addressesAreLines();
    void primaryAddress_data();
    void primaryAddress();

private:
    static MeasuredInterface interface(const QString &name, LinkState state, const QStringList &addresses);
};

MeasuredInterface NetworkTextsTest::interface(const QString &name, LinkState state,
                                              const QStringList &addresses) {
    NetworkInterface described;
    described.name = name;
    described.state = state;
    described.isLoopback = name == "lo"_L1;
    described.addresses = addresses;
    return {described, {}};
}

void NetworkTextsTest::statesAreToldApartInWords() {
    QSet<QString> texts;
    for (const LinkState state :
         {LinkState::Unknown, LinkState::Up, LinkState::Waiting, LinkState::NoLink, LinkState::Off})
        texts.insert(NetworkTexts::stateText(state));
    QCOMPARE(texts.size(), 5);
}

void NetworkTextsTest::speedIsToldOfALink() {
    NetworkInterface link;
    link.state = LinkState::Up;
    link.speedMbits = 2500;
    QCOMPARE(NetworkTexts::linkText(link), u"Up, 2.5 Gbit/s"_s);
}

void NetworkTextsTest::speedIsNotToldWithoutALink() {
    NetworkInterface link;
    link.state = LinkState::NoLink;
    link.speedMbits = 100;
    QCOMPARE(NetworkTexts::linkText(link), u"No link"_s);
}

void NetworkTextsTest::unknownRateIsADash() {
    QCOMPARE(NetworkTexts::rateText(std::nullopt), u"–"_s);
    QCOMPARE(NetworkTexts::rateText(0), u"0 bit/s"_s);
}

void NetworkTextsTest::addressesAreLines_data() {
    QTest::addColumn<QStringList>("addresses");
    QTest::addColumn<QStringList>("lines");
    const QStringList many(10, u"10.0.0.1"_s);
    QTest::newRow("none is said") << QStringList() << QStringList{u"No address"_s};
    QTest::newRow("one a line") << QStringList{u"10.0.0.1"_s, u"fe80::1"_s}
                                << QStringList{u"10.0.0.1"_s, u"fe80::1"_s};
    QTest::newRow("eight are all shown") << many.first(8) << many.first(8);
    QTest::newRow("more than eight are counted") << many << (many.first(7) << u"and 3 more"_s);
    QTest::newRow("a long one in two lines")
        << QStringList{u"2001:db8:1234:5678:9abc:def0:1234:5678"_s}
        << QStringList{u"2001:db8:1234:5678:"_s, u"9abc:def0:1234:5678"_s};
}

void NetworkTextsTest::addressesAreLines() {
    QFETCH(const QStringList, addresses);
    QTEST(NetworkTexts::addressLines(addresses), "lines");
}

void NetworkTextsTest::primaryAddress_data() {
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("text");
    QTest::newRow("first interface that is on") << "up"
                                                << "eth0: 10.0.0.1";
    QTest::newRow("the next one when that is off") << "off"
                                                   << "usb0: 10.0.0.2";
}

void NetworkTextsTest::primaryAddress() {
    QFETCH(const QString, state);
    const LinkState first = state == "up"_L1 ? LinkState::Up : LinkState::Off;
    const QList<MeasuredInterface> interfaces{interface(u"lo"_s, LinkState::Up, {u"127.0.0.1"_s}),
                                              interface(u"wlan0"_s, LinkState::Up, {}),
                                              interface(u"eth0"_s, first, {u"10.0.0.1"_s, u"fe80::1"_s}),
                                              interface(u"usb0"_s, LinkState::Up, {u"10.0.0.2"_s})};
    QTEST(NetworkTexts::primaryAddress(interfaces).value_or(QString()), "text");
    QVERIFY(!NetworkTexts::primaryAddress(interfaces.first(2)));
}

QTEST_GUILESS_MAIN(NetworkTextsTest)
#include "tst_networktexts.moc"
