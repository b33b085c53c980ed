// SPDX-License-Identifier: GPL-3.0-or-later
// Controls of one part.
#include "areaground.h"
#include "buttonstyle.h"
#include "checkstyle.h"
#include "itemstyle.h"
#include "menustyle.h"
#include "progressstyle.h"
#include "shapes.h"
#include "styleoverride.h"
#include "tabstyle.h"

#include <QStyleOption>

void StyleOverride::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                const QWidget *widget) const {
    if (const auto *const button = qstyleoption_cast<const QStyleOptionButton *>(option))
        drawButton(element, *button, painter, widget);
    else if (const auto *const bar = qstyleoption_cast<const QStyleOptionProgressBar *>(option))
        drawProgressBar(element, *bar, painter, widget);
    else if (const auto *const tab = qstyleoption_cast<const QStyleOptionTab *>(option))
        drawTab(element, *tab, painter, widget);
    else
        drawOther(element, option, painter, widget);
}

void StyleOverride::drawButton(ControlElement element, const QStyleOptionButton &button, QPainter *painter,
                               const QWidget *widget) const {
    switch (element) {
    case CE_PushButton:
        // The bevel draws the ring of the focus, too.
        ButtonStyle::drawBevel(button, painter);
        drawControl(CE_PushButtonLabel, &button, painter, widget);
        break;
    case CE_PushButtonBevel:
        ButtonStyle::drawBevel(button, painter);
        break;
    case CE_PushButtonLabel: {
        QStyleOptionButton label =
            ButtonStyle::labelOption(button, widget ? widget->width() : button.rect.width());
        if (button.features & QStyleOptionButton::HasMenu)
            label.rect = ButtonStyle::besideMenuMark(label);
        QProxyStyle::drawControl(element, &label, painter, widget);
        break;
    }
    case CE_CheckBox:
    case CE_RadioButton: {
        const bool isBox = element == CE_CheckBox;
        QStyleOptionButton part = button;
        part.rect = CheckStyle::markRect(button);
        drawPrimitive(isBox ? PE_IndicatorCheckBox : PE_IndicatorRadioButton, &part, painter, widget);
        part.rect = CheckStyle::textRect(button);
        drawControl(isBox ? CE_CheckBoxLabel : CE_RadioButtonLabel, &part, painter, widget);
        if (Shapes::hasFocus(button))
            Shapes::drawFocusRing(painter, button.rect, button.palette.color(QPalette::Highlight));
        break;
    }
    default:
        QProxyStyle::drawControl(element, &button, painter, widget);
    }
}

void StyleOverride::drawProgressBar(ControlElement element, const QStyleOptionProgressBar &bar,
                                    QPainter *painter, const QWidget *widget) const {
    switch (element) {
    case CE_ProgressBarGroove:
        ProgressStyle::drawTrough(bar, painter);
        break;
    case CE_ProgressBarContents:
        ProgressStyle::drawProgress(bar, painter);
        break;
    case CE_ProgressBarLabel:
        ProgressStyle::drawText(bar, painter);
        break;
    default:
        QProxyStyle::drawControl(element, &bar, painter, widget);
    }
}

void StyleOverride::drawTab(ControlElement element, const QStyleOptionTab &tab, QPainter *painter,
                            const QWidget *widget) const {
    if (element == CE_TabBarTabShape) {
        TabStyle::drawTab(tab, painter);
    } else if (element == CE_TabBarTabLabel) {
        const QStyleOptionTab label = TabStyle::labelOption(tab);
        QProxyStyle::drawControl(element, &label, painter, widget);
    } else {
        QProxyStyle::drawControl(element, &tab, painter, widget);
    }
}

void StyleOverride::drawOther(ControlElement element, const QStyleOption *option, QPainter *painter,
                              const QWidget *widget) const {
    const auto *const header = qstyleoption_cast<const QStyleOptionHeader *>(option);
    const auto *const item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    const auto *const toolButton = qstyleoption_cast<const QStyleOptionToolButton *>(option);
    const auto *const comboBox = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    const auto *const viewItem = qstyleoption_cast<const QStyleOptionViewItem *>(option);
    if (element == CE_ItemViewItem && viewItem) {
        const QStyleOptionViewItem row = ItemStyle::rowOption(*viewItem);
        QProxyStyle::drawControl(element, &row, painter, widget);
    } else if (element == CE_HeaderSection || element == CE_HeaderEmptyArea) {
        ItemStyle::drawHeaderSection(*option, AreaGround::below(*option, widget), painter);
    } else if (element == CE_HeaderLabel && header) {
        const QStyleOptionHeader label = ItemStyle::headerLabelOption(*header);
        QProxyStyle::drawControl(element, &label, painter, widget);
    } else if (element == CE_MenuItem && item) {
        MenuStyle::drawItem(*item, painter);
    } else if (element == CE_MenuScroller) {
        MenuStyle::drawScroller(*option, painter);
    } else if (element == CE_ToolButtonLabel && toolButton) {
        const QStyleOptionToolButton label = ButtonStyle::labelOption(*toolButton);
        QProxyStyle::drawControl(element, &label, painter, widget);
    } else if (element == CE_ComboBoxLabel && comboBox) {
        QStyleOptionComboBox label = *comboBox;
        const QColor ink = Shapes::inkOn(label, QPalette::Text);
        label.palette.setColor(QPalette::ButtonText, ink);
        QProxyStyle::drawControl(element, &label, painter, widget);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}
