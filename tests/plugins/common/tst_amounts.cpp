// SPDX-License-Identifier: GPL-3.0-or-later
#include "amounts.h"

#include <QLocale>
#include <QTest>

#include <limits>

using namespace Qt::Literals::StringLiterals;

class AmountsTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void bytesHaveAUnit_data();
    void bytesHaveAUnit();
    void bytesFollowTheLanguage();
    void ratesHaveAUnit_data();
    void ratesHaveAUnit();
    void percentIsWhole_data();
    void percentIsWhole();
};

void AmountsTest::init() {
    QLocale::setDefault(QLocale::c());
}

void AmountsTest::bytesHaveAUnit_data() {
    QTest::addColumn<quint64>("count");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << quint64(0) << "0 B";
    QTest::newRow("below a kilobyte") << quint64(999) << "999 B";
    QTest::newRow("a kilobyte is 1000 bytes") << quint64(1000) << "1.0 kB";
    QTest::newRow("gigabytes") << quint64(3'400'000'000) << "3.4 GB";
    QTest::newRow("more than a signed number holds") << std::numeric_limits<quint64>::max() << "9.2 EB";
}

void AmountsTest::bytesHaveAUnit() {
    QFETCH(const quint64, count);
    QTEST(Amounts::bytes(count), "text");
}

void AmountsTest::bytesFollowTheLanguage() {
    QLocale::setDefault(QLocale(QLocale::Russian));
    QCOMPARE(Amounts::bytes(1'500'000), u"1,5 МБ"_s);
}

void AmountsTest::ratesHaveAUnit_data() {
    QTest::addColumn<quint64>("rate");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << quint64(0) << "0 bit/s";
    QTest::newRow("bits are whole") << quint64(999) << "999 bit/s";
    QTest::newRow("one digit after the point") << quint64(1'540'000) << "1.5 Mbit/s";
    QTest::newRow("whole amounts without a point") << quint64(100'000'000) << "100 Mbit/s";
    QTest::newRow("hundreds without a point") << quint64(123'400) << "123 kbit/s";
    QTest::newRow("rounded up to the next unit") << quint64(999'960) << "1.0 Mbit/s";
    QTest::newRow("no unit above giga") << quint64(400'000'000'000'000) << "400000 Gbit/s";
}

void AmountsTest::ratesHaveAUnit() {
    QFETCH(const quint64, rate);
    QTEST(Amounts::bitRate(rate), "text");
}

void AmountsTest::percentIsWhole_data() {
    QTest::addColumn<quint64>("part");
    QTest::addColumn<quint64>("total");
    QTest::addColumn<int>("percent");
    QTest::newRow("rounded") << quint64(2) << quint64(3) << 67;
    QTest::newRow("part of nothing") << quint64(5) << quint64(0) << 0;
    QTest::newRow("never above all") << quint64(7) << quint64(5) << 100;
    QTest::newRow("no overflow") << std::numeric_limits<quint64>::max() << std::numeric_limits<quint64>::max()
                                 << 100;
}

void AmountsTest::percentIsWhole() {
    QFETCH(const quint64, part);
    QFETCH(const quint64, total);
    QTEST(Amounts::percentOf(part, total), "percent");
}

QTEST_GUILESS_MAIN(AmountsTest)
#include "tst_amounts.moc"
