// SPDX-License-Identifier: GPL-3.0-or-later
#include "clocktext.h"
#include "timebutton.h"

#include <QImage>
#include <QSet>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

class TimeButtonTest : public QObject {
    Q_OBJECT

private slots:
    void timeAndDateAreWrittenAsInTheField();
    void nextTickIsAtTheTurnOfTheMinute_data();
    void nextTickIsAtTheTurnOfTheMinute();
    void clockIsDrawnInThePalettesColours();
};

void TimeButtonTest::timeAndDateAreWrittenAsInTheField() {
    const QDateTime moment(QDate(2026, 3, 7), QTime(9, 5, 59));
    QCOMPARE(clockTime(moment), u"09:05"_s);
    QCOMPARE(clockDate(moment), u"07.03.2026"_s);
}

void TimeButtonTest::nextTickIsAtTheTurnOfTheMinute_data() {
    QTest::addColumn<QTime>("time");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("on the minute") << QTime(10, 0) << 60'000;
    QTest::newRow("in the middle") << QTime(10, 0, 30) << 30'000;
    QTest::newRow("just before") << QTime(10, 0, 59, 999) << 1;
    QTest::newRow("before midnight") << QTime(23, 59, 50) << 10'000;
}

void TimeButtonTest::nextTickIsAtTheTurnOfTheMinute() {
    QFETCH(QTime, time);
    QFETCH(int, milliseconds);
    QCOMPARE(untilNextMinute(QDateTime(QDate(2026, 3, 7), time)).count(), milliseconds);
}

void TimeButtonTest::clockIsDrawnInThePalettesColours() {
    TimeButton clock;
    QPalette palette = clock.palette();
    palette.setColor(QPalette::ButtonText, Qt::red);
    palette.setColor(QPalette::PlaceholderText, Qt::blue);
    clock.setPalette(palette);
    clock.resize(140, 46);
    const QImage picture = clock.grab().toImage();
    QSet<QRgb> upper;
    QSet<QRgb> lower;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            (y < 24 ? upper : lower).insert(picture.pixel(x, y));
    }
    QVERIFY(upper.contains(QColor(Qt::red).rgb()));
    QVERIFY(lower.contains(QColor(Qt::blue).rgb()));
}

QTEST_MAIN(TimeButtonTest)
#include "tst_timebutton.moc"
