// SPDX-License-Identifier: GPL-3.0-or-later
// Places, sizes and habits of controls.
#include "buttonstyle.h"
#include "checkstyle.h"
#include "fieldstyle.h"
#include "groupboxstyle.h"
#include "itemstyle.h"
#include "menustyle.h"
#include "messageicon.h"
#include "progressstyle.h"
#include "scrollbarstyle.h"
#include "shapes.h"
#include "sliderstyle.h"
#include "styleoverride.h"
#include "tabstyle.h"
#include "widgetkinds.h"

#include <QAbstractScrollArea>
#include <QStyleOption>

namespace {

constexpr int layoutStep = 8;
constexpr int messageMargin = 16;
constexpr int headerHeight = 44;

} // namespace

QRect StyleOverride::subElementRect(SubElement element, const QStyleOption *option,
                                    const QWidget *widget) const {
    switch (element) {
    case SE_PushButtonFocusRect:
    case SE_CheckBoxFocusRect:
    case SE_CheckBoxClickRect:
    case SE_RadioButtonFocusRect:
    case SE_RadioButtonClickRect:
    case SE_ProgressBarGroove:
    case SE_ProgressBarContents:
    case SE_ProgressBarLabel:
        return option->rect;
    case SE_CheckBoxIndicator:
    case SE_RadioButtonIndicator:
        return CheckStyle::markRect(*option);
    case SE_CheckBoxContents:
    case SE_RadioButtonContents:
        return CheckStyle::textRect(*option);
    case SE_LineEditContents:
        if (const auto *const frame = qstyleoption_cast<const QStyleOptionFrame *>(option))
            return frame->lineWidth > 0 ? FieldStyle::textRect(option->rect) : option->rect;
        break;
    default:
        break;
    }
    return QProxyStyle::subElementRect(element, option, widget);
}

QSize StyleOverride::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                                      const QWidget *widget) const {
    const auto *const spinBox = qstyleoption_cast<const QStyleOptionSpinBox *>(option);
    const auto *const bar = qstyleoption_cast<const QStyleOptionProgressBar *>(option);
    const auto *const item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    const auto *const toolButton = qstyleoption_cast<const QStyleOptionToolButton *>(option);
    const auto *const frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
    if (type == CT_PushButton)
        return ButtonStyle::size(contents);
    if (type == CT_ToolButton && toolButton)
        return ButtonStyle::size(
            contents + QSize(ButtonStyle::hasMenuMark(*toolButton) ? ButtonStyle::menuMarkWidth : 0, 0));
    if (type == CT_CheckBox || type == CT_RadioButton)
        return CheckStyle::size(contents);
    if (type == CT_LineEdit && frame && frame->lineWidth > 0)
        return FieldStyle::size(contents);
    if (type == CT_ComboBox)
        return FieldStyle::comboBoxSize(contents);
    if (type == CT_SpinBox && spinBox)
        return FieldStyle::spinBoxSize(*spinBox, contents);
    if (type == CT_GroupBox)
        return GroupBoxStyle::size(contents);
    if (type == CT_TabBarTab)
        return TabStyle::size(contents);
    if (type == CT_ProgressBar && bar)
        return ProgressStyle::size(*bar, contents);
    if (type == CT_MenuItem && item)
        return MenuStyle::itemSize(*item, contents);
    const QSize usual = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_ItemViewItem)
        return ItemStyle::rowSize(usual);
    if (type == CT_HeaderSection)
        return {usual.width(), qMax(usual.height(), headerHeight)};
    return usual;
}

int StyleOverride::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const {
    switch (metric) {
    case PM_ScrollBarExtent:
        return ScrollBarStyle::extent;
    case PM_SliderThickness:
    case PM_SliderControlThickness:
    case PM_HeaderDefaultSectionSizeVertical:
    case PM_TabBarScrollButtonWidth:
        return Shapes::touchHeight;
    case PM_SliderLength:
        return SliderStyle::handleLength;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return CheckStyle::markSize;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return CheckStyle::gap;
    case PM_MenuButtonIndicator:
        return ButtonStyle::menuMarkWidth;
    case PM_MenuHMargin:
    case PM_MenuVMargin:
        return MenuStyle::panelMargin;
    case PM_MenuScrollerHeight:
        return Shapes::touchHeight;
    case PM_MessageBoxIconSize:
        return MessageIcon::size;
    case PM_TreeViewIndentation:
        return ItemStyle::treeIndentation;
    case PM_FocusFrameHMargin:
        return ItemStyle::textMargin - 1;
    case PM_HeaderMargin:
        return ItemStyle::textMargin;
    case PM_TabBarTabHSpace:
        return 2 * Shapes::padding + layoutStep;
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return WidgetKinds::isMessageWindow(widget) ? messageMargin : layoutStep;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return layoutStep;
    case PM_DefaultFrameWidth:
        if (WidgetKinds::isComboBoxPopup(widget))
            return MenuStyle::panelMargin;
        if (qobject_cast<const QAbstractScrollArea *>(widget))
            return FieldStyle::frameWidth;
        return QProxyStyle::pixelMetric(metric, option, widget);
    case PM_MenuPanelWidth:
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
    case PM_TabBarTabOverlap:
    case PM_TabBarBaseOverlap:
    case PM_TabBarBaseHeight:
    case PM_TabBarTabShiftHorizontal:
    case PM_TabBarTabShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int StyleOverride::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                             QStyleHintReturn *returnData) const {
    switch (hint) {
    // Nothing moves by itself: a press is answered with the next frame.
    case SH_Widget_Animate:
    case SH_Widget_Animation_Duration:
    case SH_Menu_SubMenuPopupDelay:
    case SH_ScrollBar_Transient:
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
    case SH_UnderlineShortcut:
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_ComboBox_Popup:
        return 0;
    case SH_FormLayoutLabelAlignment:
        return Qt::AlignLeft | Qt::AlignVCenter;
    case SH_Slider_AbsoluteSetButtons:
        return Qt::LeftButton;
    case SH_Table_GridLineColor:
        return option ? static_cast<int>(option->palette.color(QPalette::Mid).rgba())
                      : QProxyStyle::styleHint(hint, option, widget, returnData);
    case SH_ItemView_ShowDecorationSelected:
        return 1;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}
