// SPDX-License-Identifier: GPL-3.0-or-later
#include "gallery.h"
#include "picturedifference.h"
#include "styleoverride.h"

#include <palettefactory.h>

#include <QApplication>
#include <QFocusEvent>
#include <QImage>
#include <QPainter>
#include <QTest>
#include <memory>

using namespace Qt::Literals::StringLiterals;

/// The pictures are compared with those in references/; with ZR_MAKE_REFERENCES set they are written there
/// instead. With ZR_GALLERY=FILE all of them are drawn on one sheet, ZR_GALLERY_HEIGHT high, to be looked at.
class ControlPicturesTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();

    void controlIsAsInTheReference_data();
    void controlIsAsInTheReference();
    void statesCanBeToldApart_data();
    void statesCanBeToldApart();

private:
    static QStringList statesOf(const GalleryControl &control);
    static QImage pictureOf(const GalleryControl &control, const QString &state);
    static void drawSheet(const QString &file);
};

void ControlPicturesTest::initTestCase() {
    QApplication::setFont(QFont(u"Liberation Sans"_s));
    QApplication::setCursorFlashTime(0);
    QApplication::setPalette(PaletteFactory::getPalette(u"GenericWindow"_s));
    QApplication::setStyle(new StyleOverride(QApplication::style()));
    if (qEnvironmentVariableIsSet("ZR_GALLERY"))
        drawSheet(qEnvironmentVariable("ZR_GALLERY"));
}

QStringList ControlPicturesTest::statesOf(const GalleryControl &control) {
    QStringList states{u"enabled"_s, u"disabled"_s};
    const std::unique_ptr<QWidget> widget(control.make());
    if (widget->focusPolicy() != Qt::NoFocus && control.name != "menu"_L1)
        states += u"focused"_s;
    if (control.press)
        states += u"pressed"_s;
    return states;
}

QImage ControlPicturesTest::pictureOf(const GalleryControl &control, const QString &state) {
    QWidget window;
    QWidget *const widget = control.make();
    const QSize size = widget->size();
    widget->setParent(&window);
    widget->resize(size);
    widget->setEnabled(state != "disabled"_L1);
    widget->show();
    window.resize(size);
    // Another one takes the focus that the first one of a window is given.
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    window.show();
    window.activateWindow();
    (state == "focused"_L1 ? widget : &other)->setFocus();
    if (!QTest::qWaitForWindowActive(&window))
        return {};
    if (state == "pressed"_L1)
        control.press(widget);
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(QApplication::palette().color(QPalette::Window));
    widget->render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
    return picture;
}

void ControlPicturesTest::drawSheet(const QString &file) {
    QImage sheet(800, qEnvironmentVariableIntValue("ZR_GALLERY_HEIGHT"), QImage::Format_RGB32);
    sheet.fill(QApplication::palette().color(QPalette::Window));
    QPainter painter(&sheet);
    QPoint at(8, 8);
    int rowHeight = 0;
    for (const GalleryControl &control : galleryControls()) {
        for (const QString &state : statesOf(control)) {
            const QImage picture = pictureOf(control, state);
            if (at.x() + picture.width() > sheet.width()) {
                at = QPoint(8, at.y() + rowHeight + 8);
                rowHeight = 0;
            }
            painter.drawImage(at, picture);
            at.rx() += picture.width() + 8;
            rowHeight = qMax(rowHeight, picture.height());
        }
    }
    painter.end();
    QVERIFY(sheet.save(file));
}

void ControlPicturesTest::controlIsAsInTheReference_data() {
    QTest::addColumn<int>("control");
    QTest::addColumn<QString>("state");
    for (int i = 0; i < galleryControls().size(); ++i) {
        for (const QString &state : statesOf(galleryControls()[i]))
            QTest::newRow(qPrintable(galleryControls()[i].name + u'-' + state)) << i << state;
    }
}

void ControlPicturesTest::controlIsAsInTheReference() {
    QFETCH(int, control);
    QFETCH(QString, state);
    const QImage picture = pictureOf(galleryControls()[control], state);
    const QString file =
        QStringLiteral(REFERENCES "/%1.png").arg(QString::fromLatin1(QTest::currentDataTag()));
    const QString difference = differenceFromReference(picture, file);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

void ControlPicturesTest::statesCanBeToldApart_data() {
    QTest::addColumn<int>("control");
    for (int i = 0; i < galleryControls().size(); ++i)
        QTest::newRow(qPrintable(galleryControls()[i].name)) << i;
}

void ControlPicturesTest::statesCanBeToldApart() {
    QFETCH(int, control);
    const QStringList states = statesOf(galleryControls()[control]);
    for (const QString &one : states) {
        for (const QString &other : states) {
            if (one < other) {
                const QImage picture = pictureOf(galleryControls()[control], one);
                const qint64 difference =
                    differenceBetween(picture, pictureOf(galleryControls()[control], other));
                QVERIFY2(difference > toleratedDifference(picture.size()),
                         qPrintable(one + u" and "_s + other));
            }
        }
    }
}

QTEST_MAIN(ControlPicturesTest)
#include "tst_controlpictures.moc"
