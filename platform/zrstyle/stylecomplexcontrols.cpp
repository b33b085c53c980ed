// SPDX-License-Identifier: GPL-3.0-or-later
// Controls of several parts, each of which answers a press by itself.
#include "areaground.h"
#include "buttonstyle.h"
#include "fieldstyle.h"
#include "groupboxstyle.h"
#include "scrollbarstyle.h"
#include "shapes.h"
#include "sliderstyle.h"
#include "styleoverride.h"

#include <QStyleOptionComplex>

void StyleOverride::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                       QPainter *painter, const QWidget *widget) const {
    const auto *const slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    const auto *const comboBox = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    const auto *const spinBox = qstyleoption_cast<const QStyleOptionSpinBox *>(option);
    const auto *const toolButton = qstyleoption_cast<const QStyleOptionToolButton *>(option);
    const auto *const groupBox = qstyleoption_cast<const QStyleOptionGroupBox *>(option);
    if (control == CC_ScrollBar && slider)
        ScrollBarStyle::draw(*slider, AreaGround::below(*option, widget), painter);
    else if (control == CC_Slider && slider)
        SliderStyle::draw(*slider, painter);
    else if (control == CC_ComboBox && comboBox)
        FieldStyle::drawComboBox(*comboBox, painter);
    else if (control == CC_SpinBox && spinBox)
        FieldStyle::drawSpinBox(*spinBox, painter);
    else if (control == CC_ToolButton && toolButton)
        drawToolButton(*toolButton, painter, widget);
    else if (control == CC_GroupBox && groupBox)
        GroupBoxStyle::draw(*groupBox, painter);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void StyleOverride::drawToolButton(const QStyleOptionToolButton &button, QPainter *painter,
                                   const QWidget *widget) const {
    ButtonStyle::drawToolPanel(button, painter);
    QStyleOptionToolButton label = ButtonStyle::labelOption(button);
    if (ButtonStyle::hasMenuMark(button)) {
        Shapes::drawChevron(painter, ButtonStyle::menuMark(button), Qt::DownArrow,
                            label.palette.color(QPalette::ButtonText));
        label.rect = ButtonStyle::besideMenuMark(button);
    }
    QProxyStyle::drawControl(CE_ToolButtonLabel, &label, painter, widget);
}

QRect StyleOverride::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                    SubControl part, const QWidget *widget) const {
    const auto *const slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    const auto *const comboBox = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    const auto *const spinBox = qstyleoption_cast<const QStyleOptionSpinBox *>(option);
    const auto *const groupBox = qstyleoption_cast<const QStyleOptionGroupBox *>(option);
    if (control == CC_GroupBox && groupBox)
        return GroupBoxStyle::partRect(*groupBox, part);
    if (control == CC_ScrollBar && slider)
        return ScrollBarStyle::partRect(*slider, part);
    if (control == CC_Slider && slider)
        return SliderStyle::partRect(*slider, part);
    if (control == CC_ComboBox && comboBox)
        return FieldStyle::comboBoxPart(*comboBox, part);
    if (control == CC_SpinBox && spinBox)
        return FieldStyle::spinBoxPart(*spinBox, part);
    return QProxyStyle::subControlRect(control, option, part, widget);
}
