// SPDX-License-Identifier: GPL-3.0-or-later
#include "power/batteryindicator.h"

#include "power/batterypicture.h"

#include <palettefactory.h>
#include <statuslabel.h>

#include <QEvent>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int panelWidth = 250;
constexpr int darkening = 120;
constexpr qreal penWidth = 1;
constexpr qreal boltPenWidth = 1.4;
constexpr qreal crossPenWidth = 4;
constexpr int steadyDifference = 2;

// The kernel's words; the record brings them at run time.
[[maybe_unused]] constexpr const char *units[] = {
    QT_TRANSLATE_NOOP("BatteryIndicator", "min"),
    QT_TRANSLATE_NOOP("BatteryIndicator", "sec"),
    QT_TRANSLATE_NOOP("BatteryIndicator", "?"),
};

QColor quality(QPalette::ColorGroup group) {
    return PaletteFactory::getPalette(u"quality"_s).color(group, QPalette::Window);
}

QPen roundPen(const QBrush &brush, qreal width) {
    return {brush, width, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin};
}

void drawWith(QPainter &painter, const QPen &pen, const QPainterPath &path) {
    painter.setPen(pen);
    painter.setBrush(pen.brush());
    painter.drawPath(path);
}

/// The charge that the bar shows now; the first reading's to begin with.
int &shownPercentage(int firstPercentage) {
    static int oldPersents = firstPercentage;
    return oldPersents;
}

} // namespace

BatteryIndicator::BatteryIndicator(QWidget *parent)
    : PressingLabel(parent, true), panel(nullptr, panelWidth), textTable(new StatusLabel(this)) {
    setProperty("palette_id", u"Battery"_s);
    connect(&reader, SIGNAL(newApmData(ApmInfo)), this, SLOT(redrawFromApmData(ApmInfo)));
    connect(this, SIGNAL(clicked()), this, SLOT(showPanel()));
    QFont font(u"Liberation Sans"_s, 14, QFont::Bold);
    font.setItalic(false);
    textTable->setFont(font);
    const QColor black(u"black"_s);
    setCaption(0, tr("Charge level:"), black);
    setCaption(1, tr("Remaining time:"), black);
    setCaption(2, tr("Status:"), black);
    panel.addToLayout(textTable);
    panel.setHeadOnDark(true);
    reader.start();
}

BatteryIndicator::~BatteryIndicator() {
    reader.quit();
}

void BatteryIndicator::showPanel() {
    // Where the widget stands on the screen; its own place is within the window.
    const QPoint window = parentWidget() ? parentWidget()->mapToGlobal(QPoint()) : QPoint();
    panel.setCallerRect(frameGeometry().translated(window).adjusted(6, -3, -6, 3));
    panel.show();
    panel.raise();
}

void BatteryIndicator::redrawFromApmData(const ApmInfo &data) {
    levelColor = getColorFromApmInfo(data);
    redrawPixmap(data);
    redrawStatusLabel(data);
    lastRecord = data;
}

void BatteryIndicator::changeEvent(QEvent *event) {
    PressingLabel::changeEvent(event);
    // A record that is no other than the last would leave the picture in the colours that it has.
    if (event->type() == QEvent::PaletteChange && !pixmap().isNull())
        redrawFromApmData(std::exchange(lastRecord, ApmInfo()));
}

QColor BatteryIndicator::getColorFromApmInfo(const ApmInfo &info) const {
    switch (info.batteryStatus) {
    case ApmInfo::High:
        return quality(QPalette::Active);
    case ApmInfo::Low:
        return quality(QPalette::Disabled).darker(darkening);
    case ApmInfo::Critical:
    case ApmInfo::Absent:
        return quality(QPalette::Disabled);
    case ApmInfo::Charging:
        return palette().color(QPalette::Button);
    default:
        return palette().color(QPalette::Text);
    }
}

void BatteryIndicator::redrawPixmap(const ApmInfo &info) {
    shownPercentage(info.percentage);
    if (info.batteryStatus == lastRecord.batteryStatus && info.percentage == lastRecord.percentage)
        return;
    QPixmap picture(BatteryPicture::width, BatteryPicture::height);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);

    const QPainterPath outline = BatteryPicture::outerPath();
    const QPainterPath charge = chargePath(info);
    const QPainterPath bolt =
        info.batteryStatus == ApmInfo::Charging ? BatteryPicture::chargingPath() : QPainterPath();
    drawWith(painter, roundPen(palette().brush(QPalette::Button), penWidth), outline);
    drawWith(painter, roundPen(levelColor, penWidth), charge);
    if (!bolt.isEmpty())
        drawBolt(painter, bolt);
    if (info.batteryStatus == ApmInfo::Absent)
        drawCross(painter);
    setPixmap(picture);

    if (levelColor == QColor(u"white"_s)) {
        // The panel is as light as the level.
        const QPen darkPen =
            roundPen(palette().brush(QPalette::Dark), bolt.isEmpty() ? penWidth : boltPenWidth);
        drawWith(painter, darkPen, outline);
        drawWith(painter, darkPen, charge);
        if (!bolt.isEmpty())
            drawBolt(painter, bolt);
    }
    painter.end();
    panel.setPixmap(picture);
}

QPainterPath BatteryIndicator::chargePath(const ApmInfo &info) const {
    int &shown = shownPercentage(info.percentage);
    if (qAbs(qint64(info.percentage) - shown) <= steadyDifference && shown > 0)
        return info.percentage > 0 ? BatteryPicture::innerPath(shown) : QPainterPath();
    shown = info.percentage;
    return BatteryPicture::innerPath(shown);
}

void BatteryIndicator::drawBolt(QPainter &painter, const QPainterPath &bolt) const {
    painter.setPen(roundPen(palette().brush(QPalette::Dark), boltPenWidth));
    painter.setBrush(quality(QPalette::Inactive));
    painter.drawPath(bolt);
}

void BatteryIndicator::drawCross(QPainter &painter) const {
    painter.setPen(roundPen(levelColor, crossPenWidth));
    painter.drawLine(12, 6, 49, 29);
    painter.drawLine(12, 29, 49, 6);
}

void BatteryIndicator::redrawStatusLabel(const ApmInfo &info) {
    const QColor captionColor = palette().color(QPalette::WindowText);
    const QColor statusColor = palette().color(QPalette::Text);
    const QColor valueColor = info.batteryStatus == ApmInfo::Charging ? captionColor : statusColor;
    QString statusCaption;
    QString status;
    if (info.batteryStatus == ApmInfo::Charging || info.batteryStatus == ApmInfo::Absent) {
        statusCaption = tr("Status:");
        status = info.batteryStatus == ApmInfo::Charging ? tr("Charging") : tr("Battery is absent");
    }
    const QString charge =
        info.percentage != ApmInfo::unknown ? u"%1%"_s.arg(info.percentage) : tr("Unknown", "charge level");
    const QString time = info.time != ApmInfo::unknown
                             ? u"%1 %2"_s.arg(QString::number(info.time), tr(info.units.toUtf8().constData()))
                             : tr("Unknown", "remaining time");
    setCaption(0, tr("Charge Level:"), captionColor);
    setCaption(2, statusCaption, captionColor);
    setValue(2, 2, status, statusColor);
    setValue(2, 0, charge, valueColor);
    setCaption(1, tr("Remaining time:"), captionColor);
    setValue(1, 1, time, captionColor);
    panel.doResize();
}

void BatteryIndicator::setCaption(int row, const QString &text, const QColor &color) {
    textTable->setCell(0, row, Qt::AlignLeft, text, color, 0, false);
}

void BatteryIndicator::setValue(int column, int row, const QString &text, const QColor &color) {
    textTable->setCell(column, row, Qt::AlignRight, text, color, 0, false);
}
