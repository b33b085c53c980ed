// SPDX-License-Identifier: GPL-3.0-or-later
#include "ownedwidgets.h"

OwnedWidgets::~OwnedWidgets() {
    for (const QPointer<QWidget> &widget : widgets)
        delete widget;
}
