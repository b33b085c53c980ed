// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QObject;

/// Widgets that the style has to know by what they are: their options do not tell.
namespace WidgetKinds {

/// The list that a combo box opens.
bool isComboBoxPopup(const QObject *widget);
/// What MenuStyle draws the panel of.
bool isMenuOrList(const QObject *widget);
/// The ready-made dialogs; others draw their own edge. There is no window manager to do it.
bool isMessageWindow(const QObject *object);

} // namespace WidgetKinds
