// SPDX-License-Identifier: GPL-3.0-or-later
#include "power/batteryindicator.h"

#include "power/batterypicture.h"

#include <palettefactory.h>
#include <statuslabel.h>
#include <statuspanel.h>
#include <styleoverride.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int unknownStatus = 0xff;

ApmInfo record(int status, int percentage, int time = -1, const QString &units = u"?"_s) {
    return {u"1.16"_s, 1, 2, 3, 1, status, 0, percentage, time, units};
}

} // namespace

/// The pictures are compared with those in references/; with ZR_MAKE_REFERENCES set they are written there instead.
class BatteryIndicatorTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();

    void outerPathIsAFrameWithATerminal();
    void innerPathFollowsTheCharge_data();
    void innerPathFollowsTheCharge();
    void chargingPathIsClosed();
    void pictureIsAsInTheReference_data();
    void pictureIsAsInTheReference();
    void smallMovesLeaveTheBar_data();
    void smallMovesLeaveTheBar();
    void recordThatDiffersOnlyInTimeKeepsThePicture();
    void panelShowsTheTable_data();
    void panelShowsTheTable();
    void whiteLevelIsRedrawnDarkOnThePanelOnly();
    void otherColoursRedrawTheLastRecord();
    void pressOpensThePanel();

private:
    /// Brings the shared percentage to `percentage`, whatever it was.
    static void settle(BatteryIndicator &indicator, int percentage) {
        indicator.redrawFromApmData(record(ApmInfo::High, percentage > 50 ? 1 : 100));
        indicator.redrawFromApmData(record(ApmInfo::High, percentage));
    }
    static QImage pictureOf(const BatteryIndicator &indicator) { return indicator.pixmap().toImage(); }
    /// Without any ground below it.
    static QImage drawn(QWidget *widget) {
        widget->window()->grab();
        QImage image(widget->size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        widget->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        return image;
    }
    static StatusPanel *panelOf(const BatteryIndicator &) {
        for (QWidget *const widget : QApplication::topLevelWidgets()) {
            if (auto *const panel = qobject_cast<StatusPanel *>(widget))
                return panel;
        }
        return nullptr;
    }
};

void BatteryIndicatorTest::initTestCase() {
    QTest::failOnWarning(QRegularExpression(u"^QObject"_s));
    QApplication::setStyle(new StyleOverride(QApplication::style()));
}

void BatteryIndicatorTest::outerPathIsAFrameWithATerminal() {
    const QPainterPath path = BatteryPicture::outerPath();
    QCOMPARE(path.fillRule(), Qt::OddEvenFill);
    QCOMPARE(path.boundingRect().topLeft(), QPointF(6, 4));
    QCOMPARE(path.boundingRect().bottom(), 31.0);
    QVERIFY(qAbs(path.boundingRect().right() - 59.41) < 1e-5);
    QVERIFY(path.contains(QPointF(30, 4.5)));
    QVERIFY(!path.contains(QPointF(30, 17)));
    QVERIFY(path.contains(QPointF(57, 17)));
    QVERIFY(!path.contains(QPointF(57, 12)));
    QVERIFY(!path.contains(QPointF(57, 23)));
}

void BatteryIndicatorTest::innerPathFollowsTheCharge_data() {
    QTest::addColumn<int>("percent");
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("unknown") << -1 << QRectF();
    QTest::newRow("empty") << 0 << QRectF();
    QTest::newRow("one per cent") << 1 << QRectF(8, 6, 0.45, 23);
    QTest::newRow("half") << 50 << QRectF(8, 6, 22.5, 23);
    QTest::newRow("full") << 100 << QRectF(8, 6, 45, 23);
    QTest::newRow("more than full reaches past the body") << 200 << QRectF(8, 6, 90, 23);
}

void BatteryIndicatorTest::innerPathFollowsTheCharge() {
    QFETCH(int, percent);
    QFETCH(QRectF, rect);
    const QRectF bounds = BatteryPicture::innerPath(percent).boundingRect();
    QVERIFY2(qAbs(bounds.width() - rect.width()) < 1e-4 && bounds.topLeft() == rect.topLeft() &&
                 qAbs(bounds.height() - rect.height()) < 1e-4,
             qPrintable(QString::number(bounds.width())));
}

void BatteryIndicatorTest::chargingPathIsClosed() {
    const QPainterPath path = BatteryPicture::chargingPath();
    QCOMPARE(path.elementCount(), 7);
    QCOMPARE(QPointF(path.elementAt(0)), QPointF(22, 29));
    QCOMPARE(QPointF(path.elementAt(3)), QPointF(43, 6));
    QCOMPARE(QPointF(path.elementAt(6)), QPointF(22, 29));
}

void BatteryIndicatorTest::pictureIsAsInTheReference_data() {
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("percentage");
    const QList<QPair<QString, int>> states{
        {u"high"_s, ApmInfo::High},         {u"low"_s, ApmInfo::Low},
        {u"critical"_s, ApmInfo::Critical}, {u"charging"_s, ApmInfo::Charging},
        {u"absent"_s, ApmInfo::Absent},     {u"unknown"_s, unknownStatus}};
    for (const auto &[name, status] : states) {
        for (const int percentage : {-1, 0, 1, 5, 20, 50, 80, 100}) {
            const QString charge = percentage < 0 ? u"unknown"_s : QString::number(percentage);
            QTest::newRow(qPrintable(name + u'-' + charge)) << status << percentage;
        }
    }
}

void BatteryIndicatorTest::pictureIsAsInTheReference() {
    QFETCH(int, status);
    QFETCH(int, percentage);
    BatteryIndicator indicator;
    indicator.ensurePolished();
    settle(indicator, percentage > 50 ? 10 : 100);
    indicator.redrawFromApmData(record(status, percentage));
    QCOMPARE(indicator.pixmap().size(), QSize(61, 36));
    // On the ground that it is seen on.
    QImage picture(61, 36, QImage::Format_RGB32);
    picture.fill(PaletteFactory::getPalette(u"Chrome"_s).color(QPalette::Window));
    QPainter(&picture).drawPixmap(0, 0, indicator.pixmap());
    const QString file =
        QStringLiteral(REFERENCES "/%1.png").arg(QString::fromLatin1(QTest::currentDataTag()));
    if (qEnvironmentVariableIsSet("ZR_MAKE_REFERENCES"))
        QVERIFY(picture.save(file));
    const QImage reference = QImage(file).convertToFormat(QImage::Format_RGB32);
    QCOMPARE(reference.size(), picture.size());
    qint64 difference = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor is = picture.pixelColor(x, y);
            const QColor was = reference.pixelColor(x, y);
            difference +=
                qAbs(is.red() - was.red()) + qAbs(is.green() - was.green()) + qAbs(is.blue() - was.blue());
        }
    }
    // Another version of Qt may smooth an edge a little differently.
    QVERIFY2(difference < 61 * 36, qPrintable(QString::number(difference)));
}

void BatteryIndicatorTest::smallMovesLeaveTheBar_data() {
    QTest::addColumn<QList<int>>("percentages");
    QTest::addColumn<int>("shown");
    QTest::newRow("two up") << QList<int>{50, 52} << 50;
    QTest::newRow("three up") << QList<int>{50, 53} << 53;
    QTest::newRow("one by one up to two") << QList<int>{50, 51, 52} << 50;
    QTest::newRow("one by one up to three") << QList<int>{50, 51, 52, 53} << 53;
    QTest::newRow("two down") << QList<int>{50, 48} << 50;
    QTest::newRow("unknown draws no bar") << QList<int>{50, -1} << 0;
    QTest::newRow("empty after one draws no bar") << QList<int>{1, 0} << 0;
    QTest::newRow("and then two is drawn as one") << QList<int>{1, 0, 2} << 1;
}

void BatteryIndicatorTest::smallMovesLeaveTheBar() {
    QFETCH(QList<int>, percentages);
    QFETCH(int, shown);
    BatteryIndicator indicator;
    indicator.ensurePolished();
    settle(indicator, percentages.takeFirst());
    for (const int percentage : percentages)
        indicator.redrawFromApmData(record(ApmInfo::High, percentage));
    const QImage picture = pictureOf(indicator);
    BatteryIndicator other;
    other.ensurePolished();
    settle(other, shown);
    QCOMPARE(picture, pictureOf(other));
}

void BatteryIndicatorTest::recordThatDiffersOnlyInTimeKeepsThePicture() {
    BatteryIndicator indicator;
    settle(indicator, 60);
    indicator.redrawFromApmData(record(ApmInfo::High, 60, 100, u"min"_s));
    const qint64 key = indicator.pixmap().cacheKey();
    const QImage table = panelOf(indicator)->grab().toImage();
    indicator.redrawFromApmData(record(ApmInfo::High, 60, 40, u"min"_s));
    QCOMPARE(indicator.pixmap().cacheKey(), key);
    QVERIFY(panelOf(indicator)->grab().toImage() != table);
}

void BatteryIndicatorTest::panelShowsTheTable_data() {
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("percentage");
    QTest::addColumn<int>("time");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("discharging") << int(ApmInfo::High) << 76 << 142
                                 << QStringList{u"Charge Level:|76%"_s, u"Remaining time:|142 min"_s, u"|"_s};
    QTest::newRow("charging") << int(ApmInfo::Charging) << 100 << -1
                              << QStringList{u"Charge Level:|100%"_s, u"Remaining time:|Unknown"_s,
                                             u"Status:|Charging"_s};
    QTest::newRow("absent") << int(ApmInfo::Absent) << -1 << -1
                            << QStringList{u"Charge Level:|Unknown"_s, u"Remaining time:|Unknown"_s,
                                           u"Status:|Battery is absent"_s};
    QTest::newRow("unknown") << unknownStatus << 0 << 0
                             << QStringList{u"Charge Level:|0%"_s, u"Remaining time:|0 min"_s, u"|"_s};
}

void BatteryIndicatorTest::panelShowsTheTable() {
    QFETCH(int, status);
    QFETCH(int, percentage);
    QFETCH(int, time);
    QFETCH(QStringList, texts);
    BatteryIndicator indicator;
    indicator.ensurePolished();
    // Colours that cannot be taken for each other.
    QPalette palette = indicator.palette();
    palette.setColor(QPalette::Text, Qt::red);
    palette.setColor(QPalette::WindowText, Qt::blue);
    indicator.setPalette(palette);
    indicator.redrawFromApmData(record(status, percentage, time, u"min"_s));
    // The same table, made cell by cell: value cells stand in different columns.
    StatusLabel expected;
    QFont font(u"Liberation Sans"_s, 14, QFont::Bold);
    expected.setFont(font);
    const QList<int> valueColumns{2, 1, 2};
    const QColor chargeColor = status == ApmInfo::Charging ? Qt::blue : Qt::red;
    const QList<QColor> valueColors{chargeColor, Qt::blue, Qt::red};
    for (int row = 0; row < 3; ++row) {
        expected.setCell(0, row, Qt::AlignLeft, texts[row].section(u'|', 0, 0), QColor(Qt::blue), 0, false);
        expected.setCell(valueColumns[row], row, Qt::AlignRight, texts[row].section(u'|', 1),
                         valueColors[row], 0, false);
    }
    auto *const table = panelOf(indicator)->findChild<StatusLabel *>();
    QVERIFY(table);
    const QImage shown = drawn(table);
    expected.resize(table->size());
    expected.setPalette(PaletteFactory::getPalette(u"GenericWindow"_s));
    QCOMPARE(table->sizeHint(), expected.sizeHint());
    QCOMPARE(shown, drawn(&expected));
}

void BatteryIndicatorTest::whiteLevelIsRedrawnDarkOnThePanelOnly() {
    BatteryIndicator indicator;
    indicator.ensurePolished();
    settle(indicator, 90);
    QPalette palette = indicator.palette();
    palette.setColor(QPalette::Button, Qt::white);
    palette.setColor(QPalette::Dark, Qt::black);
    indicator.setPalette(palette);
    indicator.redrawFromApmData(record(ApmInfo::Charging, 40));
    QCOMPARE(pictureOf(indicator).pixelColor(14, 17), QColor(Qt::white));
    QCOMPARE(panelOf(indicator)->pixmap().toImage().pixelColor(14, 17), QColor(Qt::black));
    palette.setColor(QPalette::Button, QColor(254, 255, 255));
    indicator.setPalette(palette);
    indicator.redrawFromApmData(record(ApmInfo::Charging, 80));
    QCOMPARE(panelOf(indicator)->pixmap().toImage(), pictureOf(indicator));
}

void BatteryIndicatorTest::otherColoursRedrawTheLastRecord() {
    BatteryIndicator indicator;
    indicator.ensurePolished();
    settle(indicator, 60);
    const QImage day = pictureOf(indicator);
    const QImage table = panelOf(indicator)->grab().toImage();
    QPalette palette = indicator.palette();
    palette.setColor(QPalette::Button, Qt::yellow);
    palette.setColor(QPalette::Text, Qt::red);
    indicator.setPalette(palette);
    QVERIFY(pictureOf(indicator) != day);
    QVERIFY(panelOf(indicator)->grab().toImage() != table);
    // The same reading as before keeps the new picture.
    const qint64 key = indicator.pixmap().cacheKey();
    indicator.redrawFromApmData(record(ApmInfo::High, 60));
    QCOMPARE(indicator.pixmap().cacheKey(), key);
}

void BatteryIndicatorTest::pressOpensThePanel() {
    QWidget window;
    window.resize(800, 480);
    BatteryIndicator indicator(&window);
    indicator.move(4, 400);
    window.show();
    indicator.redrawFromApmData(record(ApmInfo::High, 70));
    QTest::mouseClick(&indicator, Qt::LeftButton);
    StatusPanel *const panel = panelOf(indicator);
    QVERIFY(panel->isVisible());
    QVERIFY(panel->width() >= 250);
    const QRect caller = indicator.frameGeometry().adjusted(6, -3, -6, 3);
    QCOMPARE(panel->callerRect(), caller.translated(window.mapToGlobal(QPoint())));
    panel->close();
}

QTEST_MAIN(BatteryIndicatorTest)
#include "tst_batteryindicator.moc"
