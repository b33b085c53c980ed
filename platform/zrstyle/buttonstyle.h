// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

class QPainter;
class QStyleOption;
class QStyleOptionButton;
class QStyleOptionToolButton;

/// Push buttons and tool buttons: rounded, the accent colour when pressed or checked.
namespace ButtonStyle {

/// Of the mark of a button that opens a menu.
constexpr int menuMarkWidth = 32;

void drawBevel(const QStyleOptionButton &option, QPainter *painter);
void drawToolPanel(const QStyleOption &option, QPainter *painter);
/// The option with the colours that its label has on the bevel. A text that is wider than the button loses its end;
/// centred, it would lose both.
QStyleOptionButton labelOption(const QStyleOptionButton &option, int buttonWidth);
/// The same for a tool button, whose text is as wide as it is.
QStyleOptionToolButton labelOption(const QStyleOptionToolButton &option);
QSize size(const QSize &contents);

bool hasMenuMark(const QStyleOptionToolButton &option);
QRect menuMark(const QStyleOption &option);
QRect besideMenuMark(const QStyleOption &option);

} // namespace ButtonStyle
