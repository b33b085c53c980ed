// SPDX-License-Identifier: GPL-3.0-or-later
#include "styleoverride.h"

#include "buttonstyle.h"
#include "checkstyle.h"
#include "controlfonts.h"
#include "fieldstyle.h"
#include "groupboxstyle.h"
#include "itemstyle.h"
#include "menustyle.h"
#include "messageicon.h"
#include "progressstyle.h"
#include "scrollbarstyle.h"
#include "shapes.h"
#include "sliderstyle.h"
#include "tabstyle.h"

#include <palettefactory.h>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QDynamicPropertyChangeEvent>
#include <QErrorMessage>
#include <QInputDialog>
#include <QMessageBox>
#include <QPainter>
#include <QProgressDialog>
#include <QStyleOption>

namespace {

constexpr char paletteProperty[] = "palette_id";
constexpr int layoutStep = 8;
constexpr int messageMargin = 16;
constexpr int menuMarkWidth = 32;
constexpr int headerHeight = 44;
constexpr qreal windowEdgeWidth = 2;

void applyPalette(QWidget *widget) {
    const QString name = widget->property(paletteProperty).toString();
    if (!name.isEmpty())
        widget->setPalette(PaletteFactory::getPalette(name));
}

/// The list that a combo box opens has no class that others may name.
bool isComboBoxPopup(const QWidget *widget) {
    return widget && widget->inherits("QComboBoxPrivateContainer");
}

/// The ready-made dialogs; others draw their own edge. There is no window manager to do it.
bool isMessageWindow(const QObject *object) {
    return qobject_cast<const QMessageBox *>(object) || qobject_cast<const QInputDialog *>(object) ||
           qobject_cast<const QProgressDialog *>(object) || qobject_cast<const QErrorMessage *>(object);
}

void drawWindowEdge(QWidget *window) {
    QPainter painter(window);
    Shapes::drawRounded(&painter, window->rect(), Qt::NoBrush,
                        QPen(window->palette().color(QPalette::Button), windowEdgeWidth));
}

void drawFocusRing(const QStyleOption &option, QPainter *painter) {
    if (option.state & QStyle::State_Item)
        ItemStyle::drawFocusRing(option, painter);
    else // On an accent ground the accent ring would not be seen.
        Shapes::drawFocusRing(painter, option.rect, Shapes::inkOn(option, QPalette::Highlight));
}

/// What the contents of a list or text lie on: its frame, header and scroll bars do so, too.
QBrush groundOf(const QAbstractScrollArea *area) {
    const QWidget *const viewport = area->viewport();
    const auto role = viewport->autoFillBackground() ? viewport->backgroundRole() : QPalette::Window;
    return viewport->palette().brush(role);
}

/// Of a header or scroll bar.
QBrush groundBelow(const QStyleOption &option, const QWidget *widget) {
    for (const QWidget *at = widget ? widget->parentWidget() : nullptr; at; at = at->parentWidget()) {
        if (const auto *const area = qobject_cast<const QAbstractScrollArea *>(at))
            return groundOf(area);
        if (at->isWindow())
            break;
    }
    return option.palette.window();
}

void drawPanelFrame(const QStyleOption &option, QPainter *painter, const QWidget *widget) {
    if (isComboBoxPopup(widget)) {
        MenuStyle::drawPanel(option, painter);
    } else if (const auto *const area = qobject_cast<const QAbstractScrollArea *>(widget)) {
        FieldStyle::drawFrame(option, groundOf(area), painter);
    } else {
        TabStyle::drawPane(option, painter);
    }
}

void drawLineEdit(const QStyleOptionFrame &option, QPainter *painter) {
    // Without a frame it is part of a field that has one.
    if (option.lineWidth > 0)
        FieldStyle::drawFrame(option, FieldStyle::ground(option), painter);
}

QRect besideMenuMark(const QStyleOption &option) {
    return QStyle::visualRect(option.direction, option.rect, option.rect.adjusted(0, 0, -menuMarkWidth, 0));
}

QRect menuMark(const QStyleOption &option) {
    return QStyle::visualRect(option.direction, option.rect,
                              option.rect.adjusted(option.rect.width() - menuMarkWidth, 0, 0, 0));
}

bool hasMenuMark(const QStyleOptionToolButton &option) {
    return option.features & (QStyleOptionToolButton::HasMenu | QStyleOptionToolButton::MenuButtonPopup);
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
    if (event->type() == QEvent::Paint && isMessageWindow(object))
        drawWindowEdge(static_cast<QWidget *>(object));
    else if (event->type() == QEvent::DynamicPropertyChange &&
             static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName() == paletteProperty)
        applyPalette(static_cast<QWidget *>(object));
    return QProxyStyle::eventFilter(object, event);
}

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
        MenuStyle::drawPanel(*option, painter);
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
            label.rect = besideMenuMark(label);
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
        ItemStyle::drawHeaderSection(*option, groundBelow(*option, widget), painter);
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

void StyleOverride::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                       QPainter *painter, const QWidget *widget) const {
    const auto *const slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    const auto *const comboBox = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    const auto *const spinBox = qstyleoption_cast<const QStyleOptionSpinBox *>(option);
    const auto *const toolButton = qstyleoption_cast<const QStyleOptionToolButton *>(option);
    const auto *const groupBox = qstyleoption_cast<const QStyleOptionGroupBox *>(option);
    if (control == CC_ScrollBar && slider)
        ScrollBarStyle::draw(*slider, groundBelow(*option, widget), painter);
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
    if (hasMenuMark(button)) {
        Shapes::drawChevron(painter, menuMark(button), Qt::DownArrow,
                            label.palette.color(QPalette::ButtonText));
        label.rect = besideMenuMark(button);
    }
    QProxyStyle::drawControl(CE_ToolButtonLabel, &label, painter, widget);
}

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
        return ButtonStyle::size(contents + QSize(hasMenuMark(*toolButton) ? menuMarkWidth : 0, 0));
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
        return menuMarkWidth;
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
        return isMessageWindow(widget) ? messageMargin : layoutStep;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return layoutStep;
    case PM_DefaultFrameWidth:
        if (isComboBoxPopup(widget))
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

QIcon StyleOverride::standardIcon(StandardPixmap which, const QStyleOption *option,
                                  const QWidget *widget) const {
    const QIcon sign = MessageIcon::icon(which, widget ? widget->palette() : QApplication::palette());
    return sign.isNull() ? QProxyStyle::standardIcon(which, option, widget) : sign;
}
