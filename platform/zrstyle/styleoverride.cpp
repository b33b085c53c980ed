// SPDX-License-Identifier: GPL-3.0-or-later
#include "styleoverride.h"

#include "scrollbarstyle.h"

#include <palettefactory.h>

#include <QApplication>
#include <QDynamicPropertyChangeEvent>
#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace {

constexpr char paletteProperty[] = "palette_id";
constexpr qreal radius = 10;
constexpr qreal focusRingWidth = 3;
constexpr int smallestButtonHeight = 52;
constexpr int buttonPadding = 16;

bool isPressedOrChecked(const QStyleOption &option) {
    return option.state & (QStyle::State_Sunken | QStyle::State_On);
}

void applyPalette(QWidget *widget) {
    const QString name = widget->property(paletteProperty).toString();
    if (!name.isEmpty())
        widget->setPalette(PaletteFactory::getPalette(name));
}

void drawRounded(QPainter *painter, const QRectF &rect, const QBrush &fill, const QPen &pen) {
    const qreal inset = pen.style() == Qt::NoPen ? 0 : pen.widthF() / 2;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(pen);
    painter->setBrush(fill);
    painter->drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), radius - inset, radius - inset);
    painter->restore();
}

void drawFocusRing(const QStyleOption &option, QPainter *painter) {
    // On an accent ground the accent ring would not be seen.
    const auto role = isPressedOrChecked(option) ? QPalette::HighlightedText : QPalette::Highlight;
    drawRounded(painter, option.rect, Qt::NoBrush, QPen(option.palette.color(role), focusRingWidth));
}

void drawButtonBevel(const QStyleOptionButton &option, QPainter *painter) {
    const bool isLit = isPressedOrChecked(option);
    if (option.features & QStyleOptionButton::Flat && !isLit)
        return;
    drawRounded(painter, option.rect, option.palette.brush(isLit ? QPalette::Highlight : QPalette::Button),
                QPen(option.palette.color(isLit ? QPalette::Highlight : QPalette::Mid), 1));
    if (option.state & QStyle::State_HasFocus)
        drawFocusRing(option, painter);
}

/// What is wider than the button loses its end; centred, it would lose both.
QString fittingText(const QStyleOptionButton &option, const QWidget *button) {
    const int icon = option.icon.isNull() ? 0 : option.iconSize.width();
    const int room = (button ? button->width() : option.rect.width()) - buttonPadding - icon;
    return option.fontMetrics.elidedText(option.text, Qt::ElideRight, room, Qt::TextShowMnemonic);
}

void drawHeaderSection(const QStyleOption &option, QPainter *painter) {
    painter->fillRect(option.rect, option.palette.window());
    painter->fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1),
                      option.palette.mid());
}

} // namespace

StyleOverride::StyleOverride(QStyle *base) : QProxyStyle(base) {}

void StyleOverride::applyPalettes() {
    for (QWidget *const widget : QApplication::allWidgets())
        applyPalette(widget);
}

void StyleOverride::polish(QWidget *widget) {
    QProxyStyle::polish(widget);
    if (widget->property(paletteProperty).isValid()) {
        applyPalette(widget);
        widget->installEventFilter(this);
    }
}

void StyleOverride::unpolish(QWidget *widget) {
    if (widget->property(paletteProperty).isValid()) {
        widget->removeEventFilter(this);
        widget->setPalette(QPalette());
    }
    QProxyStyle::unpolish(widget);
}

bool StyleOverride::eventFilter(QObject *object, QEvent *event) {
    if (event->type() == QEvent::DynamicPropertyChange &&
        static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName() == paletteProperty)
        applyPalette(static_cast<QWidget *>(object));
    return QProxyStyle::eventFilter(object, event);
}

void StyleOverride::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                  const QWidget *widget) const {
    if (element == PE_FrameFocusRect)
        drawFocusRing(*option, painter);
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void StyleOverride::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                const QWidget *widget) const {
    const auto *const button = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (element == CE_PushButtonBevel && button) {
        drawButtonBevel(*button, painter);
    } else if (element == CE_PushButtonLabel && button) {
        QStyleOptionButton label = *button;
        label.text = fittingText(label, widget);
        if (isPressedOrChecked(label))
            label.palette.setBrush(QPalette::ButtonText, label.palette.highlightedText());
        QProxyStyle::drawControl(element, &label, painter, widget);
    } else if (element == CE_HeaderSection || element == CE_HeaderEmptyArea) {
        drawHeaderSection(*option, painter);
    } else if (const auto *const header = qstyleoption_cast<const QStyleOptionHeader *>(option);
               element == CE_HeaderLabel && header) {
        QStyleOptionHeader label = *header;
        label.palette.setBrush(QPalette::ButtonText, label.palette.placeholderText());
        QProxyStyle::drawControl(element, &label, painter, widget);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void StyleOverride::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                       QPainter *painter, const QWidget *widget) const {
    const auto *const slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control == CC_ScrollBar && slider)
        ScrollBarStyle::draw(*slider, painter);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect StyleOverride::subElementRect(SubElement element, const QStyleOption *option,
                                    const QWidget *widget) const {
    if (element == SE_PushButtonFocusRect)
        return option->rect;
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect StyleOverride::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                    SubControl part, const QWidget *widget) const {
    const auto *const slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control == CC_ScrollBar && slider)
        return ScrollBarStyle::partRect(*slider, part);
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize StyleOverride::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                                      const QWidget *widget) const {
    if (type == CT_PushButton)
        return {contents.width() + 2 * buttonPadding, qMax(contents.height(), smallestButtonHeight)};
    return QProxyStyle::sizeFromContents(type, option, contents, widget);
}

int StyleOverride::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const {
    switch (metric) {
    case PM_ScrollBarExtent:
        return ScrollBarStyle::extent;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int StyleOverride::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                             QStyleHintReturn *returnData) const {
    switch (hint) {
    case SH_ScrollBar_Transient:
        return 0;
    case SH_Table_GridLineColor:
        return option ? static_cast<int>(option->palette.color(QPalette::Mid).rgba())
                      : QProxyStyle::styleHint(hint, option, widget, returnData);
    case SH_ItemView_ShowDecorationSelected:
        return 1;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}
