// SPDX-License-Identifier: GPL-3.0-or-later
#include "styleoverride.h"

#include "controlfonts.h"
#include "messageicon.h"
#include "popupcorners.h"
#include "shapes.h"
#include "widgetkinds.h"

#include <palettefactory.h>

#include <QApplication>
#include <QDynamicPropertyChangeEvent>
#include <QPainter>
#include <QWidget>

namespace {

constexpr char paletteProperty[] = "palette_id";
constexpr qreal windowEdgeWidth = 2;

void applyPalette(QWidget *widget) {
    const QString name = widget->property(paletteProperty).toString();
    if (!name.isEmpty())
        widget->setPalette(PaletteFactory::getPalette(name));
}

void drawWindowEdge(QWidget *window) {
    QPainter painter(window);
    Shapes::drawRounded(&painter, window->rect(), Qt::NoBrush,
                        QPen(window->palette().color(QPalette::Dark), windowEdgeWidth));
}

} // namespace

StyleOverride::StyleOverride(QStyle *base) : QProxyStyle(base) {}

void StyleOverride::applyPalettes() {
    for (QWidget *const widget : QApplication::allWidgets())
        applyPalette(widget);
}

void StyleOverride::polish(QApplication *application) {
    QProxyStyle::polish(application);
    ControlFonts::apply();
}

void StyleOverride::polish(QWidget *widget) {
    QProxyStyle::polish(widget);
    widget->installEventFilter(this);
    if (widget->property(paletteProperty).isValid())
        applyPalette(widget);
}

void StyleOverride::unpolish(QWidget *widget) {
    widget->removeEventFilter(this);
    if (widget->property(paletteProperty).isValid())
        widget->setPalette(QPalette());
    QProxyStyle::unpolish(widget);
}

bool StyleOverride::eventFilter(QObject *object, QEvent *event) {
    if (event->type() == QEvent::ToolTip)
        return true;
    if (event->type() == QEvent::Show && WidgetKinds::isMenuOrList(object))
        PopupCorners::take(static_cast<QWidget *>(object));
    else if (event->type() == QEvent::Paint && WidgetKinds::isMessageWindow(object))
        drawWindowEdge(static_cast<QWidget *>(object));
    else if (event->type() == QEvent::DynamicPropertyChange &&
             static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName() == paletteProperty)
        applyPalette(static_cast<QWidget *>(object));
    return QProxyStyle::eventFilter(object, event);
}

QIcon StyleOverride::standardIcon(StandardPixmap which, const QStyleOption *option,
                                  const QWidget *widget) const {
    const QIcon sign = MessageIcon::icon(which, widget ? widget->palette() : QApplication::palette());
    return sign.isNull() ? QProxyStyle::standardIcon(which, option, widget) : sign;
}
