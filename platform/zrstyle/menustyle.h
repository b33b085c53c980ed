// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

class QPainter;
class QStyleOption;
class QStyleOptionMenuItem;

/// Menus and the lists that combo boxes open: rows as high as a thumb on a panel with an edge of its own.
namespace MenuStyle {

constexpr int panelMargin = 8;

void drawPanel(const QStyleOption &option, QPainter *painter);
void drawItem(const QStyleOptionMenuItem &option, QPainter *painter);
void drawScroller(const QStyleOption &option, QPainter *painter);
QSize itemSize(const QStyleOptionMenuItem &option, const QSize &contents);

} // namespace MenuStyle
