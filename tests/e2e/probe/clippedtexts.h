// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// Every text on the screen that its widget does not show whole, because it ends in an ellipsis or because it is
/// painted beyond the widget or beyond what is to be seen of it; with the widget's class and name. What can be
/// scrolled to is whole.
QStringList clippedTexts();
