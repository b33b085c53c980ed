// SPDX-License-Identifier: GPL-3.0-or-later
#include "palettefactory.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class PaletteFactoryTest : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { PaletteFactory::setSet(PaletteFactory::Day); }

    void dayIsTheFirstSet();
    void everyPaletteHasANightOfItsOwn_data();
    void everyPaletteHasANightOfItsOwn();
    void paperStaysLight();
    void nightIsDark();
    void lampColoursDiffer_data();
    void lampColoursDiffer();
    void unknownNameGetsTheContentPalette();
};

void PaletteFactoryTest::dayIsTheFirstSet() {
    QCOMPARE(PaletteFactory::set(), PaletteFactory::Day);
    PaletteFactory::setSet(PaletteFactory::Night);
    QCOMPARE(PaletteFactory::set(), PaletteFactory::Night);
}

void PaletteFactoryTest::everyPaletteHasANightOfItsOwn_data() {
    QTest::addColumn<QString>("name");
    QStringList names = PaletteFactory::names();
    names.removeAll(u"Paper"_s);
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void PaletteFactoryTest::everyPaletteHasANightOfItsOwn() {
    QFETCH(const QString, name);
    const QPalette day = PaletteFactory::getPalette(name);
    PaletteFactory::setSet(PaletteFactory::Night);
    QVERIFY(PaletteFactory::getPalette(name) != day);
    PaletteFactory::setSet(PaletteFactory::Day);
    QCOMPARE(PaletteFactory::getPalette(name), day);
}

void PaletteFactoryTest::paperStaysLight() {
    const QPalette day = PaletteFactory::getPalette(u"GenericWindow"_s);
    PaletteFactory::setSet(PaletteFactory::Night);
    QCOMPARE(PaletteFactory::getPalette(u"Paper"_s), day);
}

void PaletteFactoryTest::nightIsDark() {
    PaletteFactory::setSet(PaletteFactory::Night);
    for (const QString &name : {u"GenericWindow"_s, u"Chrome"_s}) {
        const QPalette palette = PaletteFactory::getPalette(name);
        for (const QPalette::ColorRole ground : {QPalette::Window, QPalette::Base, QPalette::Button})
            QVERIFY(palette.color(ground).lightnessF() < 0.35F);
    }
}

void PaletteFactoryTest::lampColoursDiffer_data() {
    QTest::addColumn<PaletteFactory::Set>("set");
    QTest::newRow("day") << PaletteFactory::Day;
    QTest::newRow("night") << PaletteFactory::Night;
}

void PaletteFactoryTest::lampColoursDiffer() {
    QFETCH(const PaletteFactory::Set, set);
    PaletteFactory::setSet(set);
    const QPalette quality = PaletteFactory::getPalette(u"quality"_s);
    const QColor good = quality.color(QPalette::Active, QPalette::Window);
    const QColor warning = quality.color(QPalette::Inactive, QPalette::Window);
    const QColor bad = quality.color(QPalette::Disabled, QPalette::Window);
    const QColor notApplicable = quality.color(QPalette::Mid);
    QVERIFY(good.green() > good.red() && good.green() > good.blue());
    QVERIFY(warning.red() > warning.blue() && warning.green() > warning.blue());
    QVERIFY(bad.red() > 2 * bad.green());
    QVERIFY(notApplicable.hslSaturationF() < 0.25F);
}

void PaletteFactoryTest::unknownNameGetsTheContentPalette() {
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"no palette named"_s));
    QCOMPARE(PaletteFactory::getPalette(u"nosuch"_s), PaletteFactory::getPalette(u"GenericWindow"_s));
}

QTEST_MAIN(PaletteFactoryTest)
#include "tst_palettefactory.moc"
