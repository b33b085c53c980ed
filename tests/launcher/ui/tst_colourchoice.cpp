// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/colourchoice.h"

#include "zrlauncherconfig.h"

#include <QApplication>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class ColourChoiceTest : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { ColourChoice::wear(PaletteFactory::Day); }

    void dayIsWornWhereNothingIsStored();
    void storedWordIsTheChoice_data();
    void storedWordIsTheChoice();
    void choiceIsKept();
    void wornSetDressesTheApplication();
};

void ColourChoiceTest::dayIsWornWhereNothingIsStored() {
    QCOMPARE(ColourChoice::stored(), PaletteFactory::Day);
}

void ColourChoiceTest::storedWordIsTheChoice_data() {
    QTest::addColumn<QString>("word");
    QTest::addColumn<PaletteFactory::Set>("set");
    QTest::newRow("night") << u"night"_s << PaletteFactory::Night;
    QTest::newRow("day") << u"day"_s << PaletteFactory::Day;
    QTest::newRow("empty") << QString() << PaletteFactory::Day;
    QTest::newRow("unknown") << u"dusk"_s << PaletteFactory::Day;
}

void ColourChoiceTest::storedWordIsTheChoice() {
    QFETCH(const QString, word);
    QFETCH(const PaletteFactory::Set, set);
    ZrLauncherConfig(u"look"_s, u"colours"_s) = word;
    QCOMPARE(ColourChoice::stored(), set);
}

void ColourChoiceTest::choiceIsKept() {
    for (const PaletteFactory::Set set : {PaletteFactory::Night, PaletteFactory::Day}) {
        ColourChoice::store(set);
        QCOMPARE(ColourChoice::stored(), set);
    }
}

void ColourChoiceTest::wornSetDressesTheApplication() {
    const QPalette day = PaletteFactory::getPalette(u"GenericWindow"_s);
    ColourChoice::wear(PaletteFactory::Night);
    QCOMPARE(PaletteFactory::set(), PaletteFactory::Night);
    QCOMPARE(QApplication::palette().color(QPalette::Window),
             PaletteFactory::getPalette(u"GenericWindow"_s).color(QPalette::Window));
    QVERIFY(QApplication::palette().color(QPalette::Window) != day.color(QPalette::Window));
}

QTEST_MAIN(ColourChoiceTest)
#include "tst_colourchoice.moc"
