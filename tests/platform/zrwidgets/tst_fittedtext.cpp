// SPDX-License-Identifier: GPL-3.0-or-later
#include "fittedtext.h"

#include <QFontMetrics>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class FittedTextTest : public QObject {
    Q_OBJECT

private slots:
    void textFits_data();
    void textFits();
    void nothingIsCutWhereATighterFontHelps_data();
    void nothingIsCutWhereATighterFontHelps();
    void lineBreaksStay();
    void endlessWordEndsInAnEllipsis();
    void hugeTextTakesNoTime();
};

void FittedTextTest::textFits_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSize>("room");
    QTest::addColumn<int>("pixels");
    QTest::addColumn<int>("lines");
    QTest::newRow("short") << u"Alarms"_s << QSize(216, 58) << 20 << 1;
    QTest::newRow("two lines") << u"Bit error rate and jitter"_s << QSize(150, 58) << 20 << 2;
    QTest::newRow("smaller") << u"Bit error rate and jitter"_s << QSize(170, 20) << 14 << 1;
    QTest::newRow("Cyrillic") << u"Коэффициент битовых ошибок"_s << QSize(216, 58) << 20 << 2;
    QTest::newRow("empty") << QString() << QSize(216, 58) << 20 << 1;
}

void FittedTextTest::textFits() {
    QFETCH(QString, text);
    QFETCH(QSize, room);
    const FittedText fitted = FittedText::in(room, text, QFont(u"Liberation Sans"_s), FontSizes::Large);
    QTEST(fitted.font.pixelSize(), "pixels");
    QTEST(int(fitted.lines.size()), "lines");
    QCOMPARE(fitted.lines.join(u' '), text);
}

void FittedTextTest::nothingIsCutWhereATighterFontHelps_data() {
    QTest::addColumn<QString>("text");
    for (const auto &text : {u"Сигнализация"_s, u"Рефлектометр"_s, u"Передача данных"_s, u"Настройки"_s})
        QTest::newRow(qPrintable(text)) << text;
}

void FittedTextTest::nothingIsCutWhereATighterFontHelps() {
    QFETCH(QString, text);
    const FittedText fitted = FittedText::in({84, 44}, text, QFont(u"Liberation Sans"_s), FontSizes::Text);
    QCOMPARE(fitted.lines.join(u' '), text);
    for (const QString &line : fitted.lines)
        QVERIFY(QFontMetrics(fitted.font).horizontalAdvance(line) <= 84);
}

void FittedTextTest::lineBreaksStay() {
    const FittedText fitted = FittedText::in({200, 60}, u"Network\nTools"_s, QFont(), FontSizes::Text);
    QCOMPARE(fitted.lines, QStringList({u"Network"_s, u"Tools"_s}));
}

void FittedTextTest::endlessWordEndsInAnEllipsis() {
    const FittedText fitted = FittedText::in({100, 20}, QString(60, u'W'), QFont(), FontSizes::Text);
    QCOMPARE(fitted.lines.size(), 1);
    QVERIFY(fitted.lines.first().endsWith(u'…'));
    QVERIFY(QFontMetrics(fitted.font).horizontalAdvance(fitted.lines.first()) <= 100);
}

void FittedTextTest::hugeTextTakesNoTime() {
    const FittedText fitted = FittedText::in({1, 1}, QString(65536, u' ') + u'W', QFont(), FontSizes::Text);
    QVERIFY(fitted.lines.size() <= 1);
    QVERIFY(!FittedText::in({100, 40}, QString(65536, u'W'), QFont(), FontSizes::Text).lines.isEmpty());
}

QTEST_MAIN(FittedTextTest)
#include "tst_fittedtext.moc"
