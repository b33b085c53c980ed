// SPDX-License-Identifier: GPL-3.0-or-later
#include "refreshrate.h"

#include <zrconfig.h>

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

class RefreshRateTest : public QObject {
    Q_OBJECT

private slots:
    void storedTextGivesTheRate_data();
    void storedTextGivesTheRate();
    void choiceIsStoredInSeconds();
};

void RefreshRateTest::storedTextGivesTheRate_data() {
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("seconds");
    QTest::newRow("nothing stored") << QString() << 1;
    QTest::newRow("a choice") << "5" << 5;
    QTest::newRow("not a choice") << "3" << 1;
    QTest::newRow("negative") << "-5" << 1;
    QTest::newRow("not a number") << "often" << 1;
    QTest::newRow("too large for a number") << "99999999999999999999" << 1;
}

void RefreshRateTest::storedTextGivesTheRate() {
    QFETCH(const QString, stored);
    QFETCH(const int, seconds);
    ZrConfig(u"zr-launcher"_s, u"system"_s, u"refresh"_s) = stored;
    QCOMPARE(RefreshRate::configured(), std::chrono::seconds(seconds));
}

void RefreshRateTest::choiceIsStoredInSeconds() {
    RefreshRate::store(2s);
    QCOMPARE(ZrConfig(u"zr-launcher"_s, u"system"_s, u"refresh"_s).string(), u"2"_s);
    QCOMPARE(RefreshRate::configured(), 2s);
}

QTEST_GUILESS_MAIN(RefreshRateTest)
#include "tst_refreshrate.moc"
