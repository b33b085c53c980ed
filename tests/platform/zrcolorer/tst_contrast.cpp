// SPDX-License-Identifier: GPL-3.0-or-later
#include <contrast.h>
#include <palettefactory.h>

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// What the screens show is told from its ground: text by 7:1, disabled text by 4.5:1, all else that has to
/// be seen to use a control by 3:1. By day the edges of tiles and buttons are not measured: a light tile, or a dark
/// button, tells itself.
class ContrastTest : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { PaletteFactory::setSet(PaletteFactory::Day); }

    void ratioIsTheGuidelines_data();
    void ratioIsTheGuidelines();
    void textCanBeRead_data();
    void textCanBeRead();
    void textOnAProgressBarCanBeRead_data();
    void textOnAProgressBarCanBeRead();
    void disabledTextCanStillBeRead_data() { addPalettes(); }
    void disabledTextCanStillBeRead();
    void controlsCanBeSeen_data();
    void controlsCanBeSeen();
    void lampsCanBeSeen_data();
    void lampsCanBeSeen();

private:
    static void addPalettes();
};

namespace {

using Set = PaletteFactory::Set;
using Role = QPalette::ColorRole;

const char *nameOf(Set set) {
    return set == PaletteFactory::Night ? "night" : "day";
}

/// The palettes that texts are drawn in; those of "quality" are lamps and shapes.
QStringList textPalettes() {
    QStringList names = PaletteFactory::names();
    names.removeAll(u"quality"_s);
    return names;
}

QString failure(const QColor &one, const QColor &other) {
    return u"%1 on %2 is %3:1"_s.arg(one.name(), other.name()).arg(contrastRatio(one, other), 0, 'f', 2);
}

} // namespace

void ContrastTest::addPalettes() {
    QTest::addColumn<PaletteFactory::Set>("set");
    QTest::addColumn<QString>("name");
    for (const Set set : {PaletteFactory::Day, PaletteFactory::Night}) {
        for (const QString &name : textPalettes())
            QTest::addRow("%s, %s", nameOf(set), qPrintable(name)) << set << name;
    }
}

void ContrastTest::ratioIsTheGuidelines_data() {
    QTest::addColumn<QColor>("one");
    QTest::addColumn<QColor>("other");
    QTest::addColumn<double>("ratio");
    QTest::newRow("black on white") << QColor(Qt::black) << QColor(Qt::white) << 21.0;
    QTest::newRow("the same") << QColor(Qt::red) << QColor(Qt::red) << 1.0;
    QTest::newRow("red on white") << QColor(0xFF0000) << QColor(0xFFFFFF) << 3.998;
    QTest::newRow("grey that just passes") << QColor(0x767676) << QColor(0xFFFFFF) << 4.542;
}

void ContrastTest::ratioIsTheGuidelines() {
    QFETCH(const QColor, one);
    QFETCH(const QColor, other);
    QFETCH(const double, ratio);
    QVERIFY(qAbs(contrastRatio(one, other) - ratio) < 0.001);
    QCOMPARE(contrastRatio(other, one), contrastRatio(one, other));
}

void ContrastTest::textCanBeRead_data() {
    addPalettes();
}

void ContrastTest::textCanBeRead() {
    QFETCH(const PaletteFactory::Set, set);
    QFETCH(const QString, name);
    PaletteFactory::setSet(set);
    const QPalette palette = PaletteFactory::getPalette(name);
    const std::pair<Role, Role> texts[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},
        {QPalette::ButtonText, QPalette::Button},
        {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::PlaceholderText, QPalette::Window},
        {QPalette::PlaceholderText, QPalette::Base},
        {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::Link, QPalette::Window},
        {QPalette::LinkVisited, QPalette::Window},
    };
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        for (const auto &[text, ground] : texts) {
            const QColor ink = palette.color(group, text);
            const QColor below = palette.color(group, ground);
            QVERIFY2(contrastRatio(ink, below) >= 7, qPrintable(failure(ink, below)));
        }
    }
}

void ContrastTest::textOnAProgressBarCanBeRead_data() {
    QTest::addColumn<PaletteFactory::Set>("set");
    QTest::addColumn<QString>("name");
    for (const Set set : {PaletteFactory::Day, PaletteFactory::Night}) {
        for (const QString &name : {u"GenericWindow"_s, u"Paper"_s})
            QTest::addRow("%s, %s", nameOf(set), qPrintable(name)) << set << name;
    }
}

void ContrastTest::textOnAProgressBarCanBeRead() {
    QFETCH(const PaletteFactory::Set, set);
    QFETCH(const QString, name);
    PaletteFactory::setSet(set);
    const QPalette palette = PaletteFactory::getPalette(name);
    const QColor ink = palette.color(QPalette::WindowText);
    const QColor groove = palette.color(QPalette::Mid);
    QVERIFY2(contrastRatio(ink, groove) >= 7, qPrintable(failure(ink, groove)));
}

void ContrastTest::disabledTextCanStillBeRead() {
    QFETCH(const PaletteFactory::Set, set);
    QFETCH(const QString, name);
    PaletteFactory::setSet(set);
    const QPalette palette = PaletteFactory::getPalette(name);
    const std::pair<Role, Role> texts[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::ButtonText, QPalette::Button},
    };
    for (const auto &[text, ground] : texts) {
        const QColor ink = palette.color(QPalette::Disabled, text);
        const QColor below = palette.color(QPalette::Disabled, ground);
        QVERIFY2(contrastRatio(ink, below) >= 4.5, qPrintable(failure(ink, below)));
    }
}

void ContrastTest::controlsCanBeSeen_data() {
    QTest::addColumn<PaletteFactory::Set>("set");
    QTest::addColumn<QString>("name");
    QTest::addColumn<Role>("part");
    QTest::addColumn<QString>("groundName");
    QTest::addColumn<Role>("ground");
    const QString content = u"GenericWindow"_s;
    const QString chrome = u"Chrome"_s;
    const QString slider = u"Slider"_s;
    const QString picture = u"Picture"_s;
    const QString battery = u"Battery"_s;
    for (const Set set : {PaletteFactory::Day, PaletteFactory::Night}) {
        const char *const when = nameOf(set);
        for (const QString &name : {content, chrome}) {
            QTest::addRow("%s, focus or checked on %s", when, qPrintable(name))
                << set << name << QPalette::Highlight << name << QPalette::Window;
            QTest::addRow("%s, focus or checked on a tile of %s", when, qPrintable(name))
                << set << name << QPalette::Highlight << name << QPalette::Base;
            QTest::addRow("%s, outline on %s", when, qPrintable(name))
                << set << name << QPalette::PlaceholderText << name << QPalette::Window;
        }
        for (const QString &name : {content, chrome}) {
            QTest::addRow("%s, separator or frame on %s", when, qPrintable(name))
                << set << name << QPalette::Dark << content << QPalette::Window;
        }
        QTest::addRow("%s, scroll mark of the lamps", when)
            << set << chrome << QPalette::Midlight << chrome << QPalette::Base;
        QTest::addRow("%s, progress in its groove", when)
            << set << content << QPalette::Highlight << content << QPalette::Mid;
        QTest::addRow("%s, handle on the page", when)
            << set << slider << QPalette::Button << slider << QPalette::Window;
        QTest::addRow("%s, handle on its groove", when)
            << set << slider << QPalette::Button << slider << QPalette::Mid;
        QTest::addRow("%s, focus of a picture", when)
            << set << picture << QPalette::Mid << chrome << QPalette::Window;
        QTest::addRow("%s, pressed picture on the column", when)
            << set << picture << QPalette::Highlight << chrome << QPalette::Window;
        QTest::addRow("%s, pressed picture", when)
            << set << picture << QPalette::HighlightedText << picture << QPalette::Highlight;
        QTest::addRow("%s, focus of the battery", when)
            << set << battery << QPalette::Mid << chrome << QPalette::Window;
        QTest::addRow("%s, outline of the battery", when)
            << set << battery << QPalette::Button << chrome << QPalette::Window;
    }
    for (const QString &name : {content, chrome}) {
        for (const Role ground : {QPalette::Window, QPalette::Base}) {
            QTest::addRow("night, edge of a control on %s of %s",
                          ground == QPalette::Base ? "a tile" : "the ground", qPrintable(name))
                << PaletteFactory::Night << name << QPalette::Midlight << name << ground;
        }
    }
    QTest::addRow("night, separator on the column")
        << PaletteFactory::Night << chrome << QPalette::Dark << chrome << QPalette::Window;
    QTest::addRow("night, dimmed picture")
        << PaletteFactory::Night << picture << QPalette::PlaceholderText << chrome << QPalette::Window;
}

void ContrastTest::controlsCanBeSeen() {
    QFETCH(const PaletteFactory::Set, set);
    QFETCH(const QString, name);
    QFETCH(const Role, part);
    QFETCH(const QString, groundName);
    QFETCH(const Role, ground);
    PaletteFactory::setSet(set);
    const QColor color = PaletteFactory::getPalette(name).color(part);
    const QColor below = PaletteFactory::getPalette(groundName).color(ground);
    QVERIFY2(contrastRatio(color, below) >= 3, qPrintable(failure(color, below)));
}

void ContrastTest::lampsCanBeSeen_data() {
    QTest::addColumn<PaletteFactory::Set>("set");
    QTest::addColumn<QPalette::ColorGroup>("group");
    QTest::addColumn<Role>("lamp");
    QTest::addColumn<QString>("groundName");
    for (const Set set : {PaletteFactory::Day, PaletteFactory::Night}) {
        const char *const when = nameOf(set);
        for (const QString &ground : {u"Chrome"_s, u"GenericWindow"_s}) {
            const char *const where = ground == "Chrome"_L1 ? "LED panel" : "lists";
            QTest::addRow("%s, good, %s", when, where)
                << set << QPalette::Active << QPalette::Window << ground;
            QTest::addRow("%s, bad, %s", when, where)
                << set << QPalette::Disabled << QPalette::Window << ground;
            QTest::addRow("%s, not applicable, %s", when, where)
                << set << QPalette::Active << QPalette::Mid << ground;
        }
        // History is shown on the LED panel only.
        QTest::addRow("%s, warning, LED panel", when)
            << set << QPalette::Inactive << QPalette::Window << u"Chrome"_s;
    }
}

void ContrastTest::lampsCanBeSeen() {
    QFETCH(const PaletteFactory::Set, set);
    QFETCH(const QPalette::ColorGroup, group);
    QFETCH(const Role, lamp);
    QFETCH(const QString, groundName);
    PaletteFactory::setSet(set);
    const QColor color = PaletteFactory::getPalette(u"quality"_s).color(group, lamp);
    const QColor below = PaletteFactory::getPalette(groundName).color(QPalette::Base);
    QVERIFY2(contrastRatio(color, below) >= 3, qPrintable(failure(color, below)));
}

QTEST_MAIN(ContrastTest)
#include "tst_contrast.moc"
