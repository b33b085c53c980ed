// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBrush>
#include <QSize>

class QPainter;
class QStyleOption;
class QStyleOptionHeader;
class QStyleOptionViewItem;

/// Lists, tables and trees with their headers.
namespace ItemStyle {

/// Before and after the text of a row.
constexpr int textMargin = 12;
/// Of each level of a tree; its branch mark is in it.
constexpr int treeIndentation = 36;

void drawHeaderSection(const QStyleOption &option, const QBrush &ground, QPainter *painter);
QStyleOptionHeader headerLabelOption(const QStyleOptionHeader &option);
void drawSortMark(const QStyleOptionHeader &option, QPainter *painter);
/// The option with quiet colours for a chosen row where nothing can be chosen now.
QStyleOptionViewItem rowOption(const QStyleOptionViewItem &option);
void drawBranch(const QStyleOption &option, QPainter *painter);
/// Inside its row, so that the next row does not paint over it.
void drawFocusRing(const QStyleOption &option, QPainter *painter);
QSize rowSize(const QSize &contents);

} // namespace ItemStyle
