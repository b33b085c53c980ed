// SPDX-License-Identifier: GPL-3.0-or-later
#include "interfaceaddresses.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class InterfaceAddressesTest : public QObject {
    Q_OBJECT

private slots:
    void loopbackHasItsAddress();
    void ipv4StandsBeforeIpv6();
};

void InterfaceAddressesTest::loopbackHasItsAddress() {
    QVERIFY(interfaceAddresses().value(u"lo"_s).contains(u"127.0.0.1"_s));
}

void InterfaceAddressesTest::ipv4StandsBeforeIpv6() {
    const QHash<QString, QStringList> all = interfaceAddresses();
    for (const QStringList &addresses : all) {
        bool isSixReached = false;
        for (const QString &address : addresses) {
            isSixReached |= address.contains(u':');
            QCOMPARE(address.contains(u':'), isSixReached);
        }
    }
}

QTEST_GUILESS_MAIN(InterfaceAddressesTest)
#include "tst_interfaceaddresses.moc"
