// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QPainter;
class QWidget;

/// The round corners of menus and of the lists that combo boxes open. A window cannot be translucent without a
/// compositor: what lies under the corners is pictured when the pop-up is shown, and drawn below its panel.
namespace PopupCorners {

/// To be called before `popup` is painted at its place.
void take(QWidget *popup);
/// Draws nothing for a widget that is no pop-up window.
void draw(const QWidget *popup, QPainter *painter);

} // namespace PopupCorners
