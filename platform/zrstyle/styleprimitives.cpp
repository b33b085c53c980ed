// SPDX-License-Identifier: GPL-3.0-or-later
// The parts that controls are put together from.
#include "areaground.h"
#include "buttonstyle.h"
#include "checkstyle.h"
#include "fieldstyle.h"
#include "itemstyle.h"
#include "menustyle.h"
#include "popupcorners.h"
#include "shapes.h"
#include "styleoverride.h"
#include "tabstyle.h"
#include "widgetkinds.h"

#include <QAbstractScrollArea>
#include <QStyleOption>

namespace {

void drawFocusRing(const QStyleOption &option, QPainter *painter) {
    if (option.state & QStyle::State_Item)
        ItemStyle::drawFocusRing(option, painter);
    else // On an accent ground the accent ring would not be seen.
        Shapes::drawFocusRing(painter, option.rect, Shapes::inkOn(option, QPalette::Highlight));
}

void drawPopup(const QStyleOption &option, QPainter *painter, const QWidget *widget) {
    PopupCorners::draw(widget, painter);
    MenuStyle::drawPanel(option, painter);
}

void drawPanelFrame(const QStyleOption &option, QPainter *painter, const QWidget *widget) {
    if (WidgetKinds::isComboBoxPopup(widget)) {
        drawPopup(option, painter, widget);
    } else if (const auto *const area = qobject_cast<const QAbstractScrollArea *>(widget)) {
        FieldStyle::drawFrame(option, AreaGround::of(area), painter);
    } else {
        TabStyle::drawPane(option, painter);
    }
}

void drawLineEdit(const QStyleOptionFrame &option, QPainter *painter) {
    // Without a frame it is part of a field that has one.
    if (option.lineWidth > 0)
        FieldStyle::drawFrame(option, FieldStyle::ground(option), painter);
}

Qt::ArrowType arrowOf(QStyle::PrimitiveElement element) {
    switch (element) {
    case QStyle::PE_IndicatorArrowUp:
        return Qt::UpArrow;
    case QStyle::PE_IndicatorArrowLeft:
        return Qt::LeftArrow;
    case QStyle::PE_IndicatorArrowRight:
        return Qt::RightArrow;
    default:
        return Qt::DownArrow;
    }
}

} // namespace

void StyleOverride::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                  const QWidget *widget) const {
    switch (element) {
    case PE_FrameFocusRect:
        drawFocusRing(*option, painter);
        break;
    case PE_PanelButtonTool:
        ButtonStyle::drawToolPanel(*option, painter);
        break;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        CheckStyle::drawBox(*option, painter);
        break;
    case PE_IndicatorRadioButton:
        CheckStyle::drawCircle(*option, painter);
        break;
    case PE_PanelLineEdit:
        if (const auto *const frame = qstyleoption_cast<const QStyleOptionFrame *>(option))
            drawLineEdit(*frame, painter);
        break;
    case PE_Frame:
        drawPanelFrame(*option, painter, widget);
        break;
    case PE_FrameTabWidget:
        TabStyle::drawPane(*option, painter);
        break;
    case PE_FrameTabBarBase:
    case PE_FrameMenu:
        break;
    case PE_PanelMenu:
        drawPopup(*option, painter, widget);
        break;
    case PE_PanelItemViewRow:
        if (const auto *const item = qstyleoption_cast<const QStyleOptionViewItem *>(option)) {
            const QStyleOptionViewItem row = ItemStyle::rowOption(*item);
            QProxyStyle::drawPrimitive(element, &row, painter, widget);
        }
        break;
    case PE_IndicatorBranch:
        ItemStyle::drawBranch(*option, painter);
        break;
    case PE_IndicatorHeaderArrow:
        if (const auto *const header = qstyleoption_cast<const QStyleOptionHeader *>(option))
            ItemStyle::drawSortMark(*header, painter);
        break;
    case PE_IndicatorArrowUp:
    case PE_IndicatorArrowDown:
    case PE_IndicatorArrowLeft:
    case PE_IndicatorArrowRight:
        Shapes::drawChevron(painter, option->rect, arrowOf(element),
                            option->palette.color(QPalette::ButtonText));
        break;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}
