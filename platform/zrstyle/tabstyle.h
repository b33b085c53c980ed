// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

class QPainter;
class QStyleOption;
class QStyleOptionTab;

/// Tabs: a row of tiles as the selector buttons are, the chosen one in the accent colour.
namespace TabStyle {

void drawTab(const QStyleOptionTab &option, QPainter *painter);
/// The option with the colours that its label has on the tab.
QStyleOptionTab labelOption(const QStyleOptionTab &option);
void drawPane(const QStyleOption &option, QPainter *painter);
QSize size(const QSize &contents);

} // namespace TabStyle
