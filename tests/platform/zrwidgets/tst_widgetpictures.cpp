// SPDX-License-Identifier: GPL-3.0-or-later
#include "ledpanel.h"
#include "picturedifference.h"
#include "widgetgallery.h"

#include <palettefactory.h>
#include <styleoverride.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

void wear(PaletteFactory::Set set) {
    PaletteFactory::setSet(set);
    QApplication::setPalette(PaletteFactory::getPalette(u"GenericWindow"_s));
}

/// Where a lamp of the panel stands out from the ground in greys alone: 1 there, 0 elsewhere.
QImage lampOutline(MeasQuality quality) {
    constexpr int leastStep = 24;
    LedPanel panel(nullptr, false);
    panel.ensurePolished();
    panel.add(QString(), quality);
    panel.invokeRebuild();
    panel.resize(76, 36);
    const QImage picture = panel.grab().toImage();
    const int ground = qGray(panel.palette().color(QPalette::Base).rgb());
    QImage outline(picture.size(), QImage::Format_Mono);
    outline.fill(0);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            outline.setPixel(x, y, qAbs(qGray(picture.pixel(x, y)) - ground) > leastStep);
    }
    return outline;
}

} // namespace

/// The pictures are compared with those in references/; with ZR_MAKE_REFERENCES set they are written there
/// instead. With ZR_GALLERY=FILE all of them are drawn on one sheet, to be looked at.
class WidgetPicturesTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();

    void widgetIsAsInTheReference_data();
    void widgetIsAsInTheReference();
    void nightIsNotDay_data();
    void nightIsNotDay();
    void pressedIsNotChecked_data();
    void pressedIsNotChecked();
    void lampsDifferWithoutTheirColours_data();
    void lampsDifferWithoutTheirColours();

private:
    static QImage pictureOf(const ShownWidget &shown, PaletteFactory::Set set);
    static void drawSheet(const QString &file);
};

void WidgetPicturesTest::initTestCase() {
    QApplication::setFont(QFont(u"Liberation Sans"_s));
    QApplication::setStyle(new StyleOverride(QApplication::style()));
    if (qEnvironmentVariableIsSet("ZR_GALLERY"))
        drawSheet(qEnvironmentVariable("ZR_GALLERY"));
}

QImage WidgetPicturesTest::pictureOf(const ShownWidget &shown, PaletteFactory::Set set) {
    wear(set);
    QWidget window;
    // Takes the focus that the first widget of a window is given.
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    other.setFocus();
    QWidget *const widget = shown.make();
    QImage picture(widget->size(), QImage::Format_RGB32);
    window.resize(picture.size());
    widget->setParent(&window);
    window.show();
    widget->resize(picture.size());
    widget->show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window))
        return {};
    if (shown.enterState)
        shown.enterState(widget);
    picture.fill(PaletteFactory::getPalette(shown.ground).color(QPalette::Window));
    widget->render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
    return picture;
}

void WidgetPicturesTest::drawSheet(const QString &file) {
    constexpr int columnWidth = 500;
    QImage sheet(2 * columnWidth, 2000, QImage::Format_RGB32);
    sheet.fill(Qt::gray);
    QPainter painter(&sheet);
    int top = 8;
    for (const ShownWidget &shown : widgetGallery()) {
        int height = 0;
        for (const auto set : {PaletteFactory::Day, PaletteFactory::Night}) {
            const QImage picture = pictureOf(shown, set);
            height = picture.height() + 8;
            const int left = set == PaletteFactory::Day ? 0 : columnWidth;
            painter.fillRect(left, top - 4, columnWidth, height,
                             PaletteFactory::getPalette(shown.ground).window());
            painter.drawImage(left + 8, top, picture);
        }
        top += height;
    }
    painter.end();
    QVERIFY(sheet.copy(0, 0, sheet.width(), top).save(file));
}

void WidgetPicturesTest::widgetIsAsInTheReference_data() {
    QTest::addColumn<int>("index");
    QTest::addColumn<PaletteFactory::Set>("set");
    for (int i = 0; i < widgetGallery().size(); ++i) {
        const QString name = widgetGallery()[i].name;
        QTest::newRow(qPrintable(name + u"-day"_s)) << i << PaletteFactory::Day;
        QTest::newRow(qPrintable(name + u"-night"_s)) << i << PaletteFactory::Night;
    }
}

void WidgetPicturesTest::widgetIsAsInTheReference() {
    QFETCH(int, index);
    QFETCH(PaletteFactory::Set, set);
    const QImage picture = pictureOf(widgetGallery()[index], set);
    const QString file =
        QStringLiteral(REFERENCES "/%1.png").arg(QString::fromLatin1(QTest::currentDataTag()));
    const QString difference = differenceFromReference(picture, file);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

void WidgetPicturesTest::nightIsNotDay_data() {
    QTest::addColumn<int>("index");
    for (int i = 0; i < widgetGallery().size(); ++i)
        QTest::newRow(qPrintable(widgetGallery()[i].name)) << i;
}

void WidgetPicturesTest::nightIsNotDay() {
    QFETCH(int, index);
    const QImage day = pictureOf(widgetGallery()[index], PaletteFactory::Day);
    const QImage night = pictureOf(widgetGallery()[index], PaletteFactory::Night);
    QCOMPARE(day.size(), night.size());
    QCOMPARE_GT(differenceBetween(day, night), toleratedDifference(day.size()));
}

void WidgetPicturesTest::pressedIsNotChecked_data() {
    QTest::addColumn<PaletteFactory::Set>("set");
    QTest::newRow("day") << PaletteFactory::Day;
    QTest::newRow("night") << PaletteFactory::Night;
}

void WidgetPicturesTest::pressedIsNotChecked() {
    QFETCH(PaletteFactory::Set, set);
    const auto tileIn = [set](const QString &state) {
        for (const ShownWidget &shown : widgetGallery()) {
            if (shown.name == state)
                return pictureOf(shown, set);
        }
        return QImage();
    };
    // None of them has the focus: its ring would be a difference by itself.
    const QImage pressed = tileIn(u"tile-switch-pressed"_s);
    const QImage checked = tileIn(u"tile-switch-checked"_s);
    QCOMPARE(pressed.size(), QSize(220, 56));
    QCOMPARE_GT(differenceBetween(pressed, checked), toleratedDifference(pressed.size()));
}

void WidgetPicturesTest::lampsDifferWithoutTheirColours_data() {
    QTest::addColumn<PaletteFactory::Set>("set");
    QTest::newRow("day") << PaletteFactory::Day;
    QTest::newRow("night") << PaletteFactory::Night;
}

void WidgetPicturesTest::lampsDifferWithoutTheirColours() {
    QFETCH(PaletteFactory::Set, set);
    wear(set);
    // Of the 144 that a lamp is large: fewer would not be seen from two metres.
    constexpr qint64 fewestPixels = 16;
    QList<QImage> outlines;
    for (const MeasQuality quality : {NotMeasured, Good, Warning, Bad}) {
        const QImage outline = lampOutline(quality);
        for (const QImage &other : std::as_const(outlines))
            QCOMPARE_GE(differenceBetween(outline, other), fewestPixels * 3 * 255);
        outlines.append(outline);
    }
}

QTEST_MAIN(WidgetPicturesTest)
#include "tst_widgetpictures.moc"
