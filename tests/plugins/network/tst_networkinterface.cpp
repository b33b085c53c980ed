// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakenetwork.h"
#include "networkinterface.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(LinkState)

class NetworkInterfaceTest : public QObject {
    Q_OBJECT

private slots:
    void stateFollowsTheKernelsWord_data();
    void stateFollowsTheKernelsWord();
    void interfaceIsRead();
    void speedIsUnknownWithoutALink_data();
    void speedIsUnknownWithoutALink();
    void kernelsOrderWithTheLoopbackLast();
    void interfaceWithoutFilesIsUnknown();
    void foreignWordsCountAsNothing();
    void strayFilesAreNoInterfaces();
    void missingDirectoryHasNone();
    void endlessListIsBounded();
};

void NetworkInterfaceTest::stateFollowsTheKernelsWord_data() {
    constexpr unsigned int up = 0x1;
    constexpr unsigned int loopback = 0x8;
    constexpr unsigned int pointToPoint = 0x10;
    QTest::addColumn<QByteArray>("word");
    QTest::addColumn<unsigned int>("flags");
    QTest::addColumn<LinkState>("state");
    QTest::newRow("link") << QByteArray("up") << up << LinkState::Up;
    QTest::newRow("no cable") << QByteArray("down") << up << LinkState::NoLink;
    QTest::newRow("layer below is down") << QByteArray("lowerlayerdown") << up << LinkState::NoLink;
    QTest::newRow("waiting for authentication") << QByteArray("dormant") << up << LinkState::Waiting;
    QTest::newRow("switched off") << QByteArray("down") << 0U << LinkState::Off;
    QTest::newRow("loopback works when on") << QByteArray("unknown") << (up | loopback) << LinkState::Up;
    QTest::newRow("tunnel works when on") << QByteArray("unknown") << (up | pointToPoint) << LinkState::Up;
    QTest::newRow("driver does not tell") << QByteArray("unknown") << up << LinkState::Unknown;
    QTest::newRow("foreign word") << QByteArray("\xff\xfe") << up << LinkState::Unknown;
    QTest::newRow("no word") << QByteArray() << up << LinkState::Unknown;
}

void NetworkInterfaceTest::stateFollowsTheKernelsWord() {
    QFETCH(const QByteArray, word);
    QFETCH(const unsigned int, flags);
    QTEST(linkState(word, flags), "state");
}

void NetworkInterfaceTest::interfaceIsRead() {
    const FakeNetwork network;
    network.plug(u"eth0"_s, 2);
    network.set(u"eth0"_s, u"speed"_s, "1000");
    network.setTraffic(u"eth0"_s, 18'000'000'000'000'000'000U, 5);
    const NetworkInterface interface = interfacesIn(network.path()).first();
    QCOMPARE(interface.name, u"eth0"_s);
    QCOMPARE(interface.number, 2);
    QCOMPARE(interface.state, LinkState::Up);
    QCOMPARE(interface.speedMbits, 1000);
    QCOMPARE(interface.counters, (TrafficCounters{18'000'000'000'000'000'000U, 5}));
}

void NetworkInterfaceTest::speedIsUnknownWithoutALink_data() {
    QTest::addColumn<QByteArray>("word");
    QTest::newRow("the kernel's -1") << QByteArray("-1");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a word") << QByteArray("fast");
    QTest::newRow("larger than a number") << QByteArray("4294967295");
}

void NetworkInterfaceTest::speedIsUnknownWithoutALink() {
    QFETCH(const QByteArray, word);
    const FakeNetwork network;
    network.plug(u"eth0"_s, 2);
    network.set(u"eth0"_s, u"speed"_s, word);
    QVERIFY(!interfacesIn(network.path()).first().speedMbits);
}

void NetworkInterfaceTest::kernelsOrderWithTheLoopbackLast() {
    const FakeNetwork network;
    network.plug(u"lo"_s, 1, "unknown", "0x9");
    network.plug(u"wlan0"_s, 2);
    network.plug(u"eth0"_s, 10);
    QStringList names;
    for (const NetworkInterface &interface : interfacesIn(network.path()))
        names.append(interface.name);
    QCOMPARE(names, QStringList({u"wlan0"_s, u"eth0"_s, u"lo"_s}));
}

void NetworkInterfaceTest::interfaceWithoutFilesIsUnknown() {
    const FileTree tree;
    QVERIFY(QDir(tree.path()).mkdir(u"eth0"_s));
    const NetworkInterface interface = interfacesIn(tree.path()).first();
    QCOMPARE(interface.name, u"eth0"_s);
    QCOMPARE(interface.state, LinkState::Off);
    QCOMPARE(interface.counters, TrafficCounters());
}

void NetworkInterfaceTest::foreignWordsCountAsNothing() {
    const FakeNetwork network;
    network.plug(u"eth0"_s, 2);
    network.set(u"eth0"_s, u"ifindex"_s, "two");
    network.set(u"eth0"_s, u"flags"_s, QByteArray(1 << 20, 'x'));
    network.set(u"eth0"_s, u"statistics/rx_bytes"_s, QByteArray("\0\xff", 2));
    const NetworkInterface interface = interfacesIn(network.path()).first();
    QCOMPARE(interface.number, 0);
    QCOMPARE(interface.counters.received, quint64(0));
}

void NetworkInterfaceTest::strayFilesAreNoInterfaces() {
    const FileTree tree;
    tree.write(u"bonding_masters"_s, "bond0\n");
    QVERIFY(interfacesIn(tree.path()).isEmpty());
}

void NetworkInterfaceTest::missingDirectoryHasNone() {
    QVERIFY(interfacesIn(u"/nowhere"_s).isEmpty());
}

void NetworkInterfaceTest::endlessListIsBounded() {
    const FileTree tree;
    for (int number = 0; number < 1100; ++number)
        QDir(tree.path()).mkdir(u"tap%1"_s.arg(number));
    QCOMPARE(interfacesIn(tree.path()).size(), 1000);
}

QTEST_GUILESS_MAIN(NetworkInterfaceTest)
#include "tst_networkinterface.moc"
