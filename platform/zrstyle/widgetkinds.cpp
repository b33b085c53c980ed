// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgetkinds.h"

#include <QErrorMessage>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QProgressDialog>

bool WidgetKinds::isComboBoxPopup(const QObject *widget) {
    // Its class has no name that others may use.
    return widget && widget->inherits("QComboBoxPrivateContainer");
}

bool WidgetKinds::isMenuOrList(const QObject *widget) {
    return qobject_cast<const QMenu *>(widget) || isComboBoxPopup(widget);
}

bool WidgetKinds::isMessageWindow(const QObject *object) {
    return qobject_cast<const QMessageBox *>(object) || qobject_cast<const QInputDialog *>(object) ||
           qobject_cast<const QProgressDialog *>(object) || qobject_cast<const QErrorMessage *>(object);
}
