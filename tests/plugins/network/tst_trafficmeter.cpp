// SPDX-License-Identifier: GPL-3.0-or-later
#include "trafficmeter.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

NetworkInterface withTraffic(quint64 received, quint64 sent) {
    NetworkInterface interface;
    interface.name = u"eth0"_s;
    interface.number = 2;
    interface.counters = {received, sent};
    return interface;
}

} // namespace

class TrafficMeterTest : public QObject {
    Q_OBJECT

private slots:
    void rateIsBitsInASecond_data();
    void rateIsBitsInASecond();
    void firstReadingHasNoRate();
    void countersThatGoBackwardsHaveNoRate();
    void rateReturnsAfterCountersWentBackwards();
    void readingsAtOneMomentHaveNoRate();
    void interfaceThatComesBackStartsAnew();
};

void TrafficMeterTest::rateIsBitsInASecond_data() {
    QTest::addColumn<int>("milliseconds");
    QTest::addColumn<quint64>("received");
    QTest::addColumn<quint64>("rate");
    QTest::newRow("one second") << 1000 << quint64(125'000) << quint64(1'000'000);
    QTest::newRow("two seconds") << 2000 << quint64(125'000) << quint64(500'000);
    QTest::newRow("silence") << 1000 << quint64(0) << quint64(0);
    QTest::newRow("100 Gbit/s") << 1000 << quint64(12'500'000'000) << quint64(100'000'000'000);
}

void TrafficMeterTest::rateIsBitsInASecond() {
    QFETCH(const int, milliseconds);
    QFETCH(const quint64, received);
    TrafficMeter meter;
    meter.rate(withTraffic(1000, 0), 5s);
    QTEST(meter.rate(withTraffic(1000 + received, 0), 5s + std::chrono::milliseconds(milliseconds))->received,
          "rate");
}

void TrafficMeterTest::firstReadingHasNoRate() {
    QVERIFY(!TrafficMeter().rate(withTraffic(1000, 0), 5s));
}

void TrafficMeterTest::countersThatGoBackwardsHaveNoRate() {
    TrafficMeter meter;
    meter.rate(withTraffic(1000, 1000), 1s);
    QVERIFY(!meter.rate(withTraffic(2000, 0), 2s));
}

void TrafficMeterTest::rateReturnsAfterCountersWentBackwards() {
    TrafficMeter meter;
    meter.rate(withTraffic(1000, 1000), 1s);
    meter.rate(withTraffic(0, 0), 2s);
    QCOMPARE(meter.rate(withTraffic(100, 200), 3s), (TrafficRate{800, 1600}));
}

void TrafficMeterTest::readingsAtOneMomentHaveNoRate() {
    TrafficMeter meter;
    meter.rate(withTraffic(0, 0), 1s);
    QVERIFY(!meter.rate(withTraffic(1000, 0), 1s));
}

void TrafficMeterTest::interfaceThatComesBackStartsAnew() {
    TrafficMeter meter;
    meter.rate(withTraffic(1000, 1000), 1s);
    meter.keepOnly({});
    QVERIFY(!meter.rate(withTraffic(2000, 2000), 2s));
}

QTEST_GUILESS_MAIN(TrafficMeterTest)
#include "tst_trafficmeter.moc"
