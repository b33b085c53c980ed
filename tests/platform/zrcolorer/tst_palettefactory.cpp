// SPDX-License-Identifier: GPL-3.0-or-later
#include "palettefactory.h"

#include <QRegularExpression>
#include <QTest>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Relative luminance and contrast as the web accessibility guidelines define them.
double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &one, const QColor &other) {
    const double lighter = qMax(luminance(one), luminance(other));
    const double darker = qMin(luminance(one), luminance(other));
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

class PaletteFactoryTest : public QObject {
    Q_OBJECT

private slots:
    void textCanBeReadInTheSun_data();
    void textCanBeReadInTheSun();
    void disabledTextCanStillBeRead_data() { textCanBeReadInTheSun_data(); }
    void disabledTextCanStillBeRead();
    void lampColoursDiffer();
    void unknownNameGetsTheContentPalette();
};

void PaletteFactoryTest::textCanBeReadInTheSun_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QPalette::ColorRole>("ground");
    QTest::addColumn<QPalette::ColorRole>("text");
    for (const char *const name : {"GenericWindow", "Chrome", "TimeButton"}) {
        const QString palette = QString::fromLatin1(name);
        QTest::addRow("%s, window", name) << palette << QPalette::Window << QPalette::WindowText;
        QTest::addRow("%s, tile", name) << palette << QPalette::Base << QPalette::Text;
        QTest::addRow("%s, button", name) << palette << QPalette::Button << QPalette::ButtonText;
    }
}

void PaletteFactoryTest::textCanBeReadInTheSun() {
    QFETCH(QString, name);
    QFETCH(QPalette::ColorRole, ground);
    QFETCH(QPalette::ColorRole, text);
    const QPalette palette = PaletteFactory::getPalette(name);
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
        QVERIFY(contrast(palette.color(group, ground), palette.color(group, text)) >= 7);
    QVERIFY(contrast(palette.color(QPalette::Window), palette.color(QPalette::PlaceholderText)) >= 4.5);
    QVERIFY(contrast(palette.color(QPalette::Highlight), palette.color(QPalette::HighlightedText)) >= 4.5);
}

void PaletteFactoryTest::disabledTextCanStillBeRead() {
    QFETCH(QString, name);
    QFETCH(QPalette::ColorRole, ground);
    QFETCH(QPalette::ColorRole, text);
    const QPalette palette = PaletteFactory::getPalette(name);
    QVERIFY(contrast(palette.color(QPalette::Disabled, ground), palette.color(QPalette::Disabled, text)) >=
            4);
}

void PaletteFactoryTest::lampColoursDiffer() {
    const QPalette quality = PaletteFactory::getPalette(u"quality"_s);
    const QColor good = quality.color(QPalette::Active, QPalette::Window);
    const QColor warning = quality.color(QPalette::Inactive, QPalette::Window);
    const QColor bad = quality.color(QPalette::Disabled, QPalette::Window);
    QVERIFY(good.green() > good.red() && good.green() > good.blue());
    QVERIFY(warning.red() > warning.blue() && warning.green() > warning.blue());
    QVERIFY(bad.red() > 2 * bad.green());
}

void PaletteFactoryTest::unknownNameGetsTheContentPalette() {
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"no palette named"_s));
    QCOMPARE(PaletteFactory::getPalette(u"nosuch"_s), PaletteFactory::getPalette(u"GenericWindow"_s));
}

QTEST_MAIN(PaletteFactoryTest)
#include "tst_palettefactory.moc"
