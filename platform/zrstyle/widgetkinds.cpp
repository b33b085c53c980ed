// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgetkinds.h"

#include <QErrorMessage>
#include <QInputDialog>
#include <QMessageBox>
#include <QProgressDialog>

bool WidgetKinds::isComboBoxPopup(const QWidget *widget) {
    // Its class has no name that others may use.
    return widget && widget->inherits("QComboBoxPrivateContainer");
}

bool WidgetKinds::isMessageWindow(const QObject *object) {
    return qobject_cast<const QMessageBox *>(object) || qobject_cast<const QInputDialog *>(object) ||
           qobject_cast<const QProgressDialog *>(object) || qobject_cast<const QErrorMessage *>(object);
}
