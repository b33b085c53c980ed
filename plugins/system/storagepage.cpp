// SPDX-License-Identifier: GPL-3.0-or-later
#include "storagepage.h"

#include "storagemodel.h"

#include <datatable.h>

#include <QVBoxLayout>

StoragePage::StoragePage(QWidget *parent)
    : QWidget(parent), model(new StorageModel(this)), table(new DataTable(this)) {
    table->setModel(model);
    table->setColumnWidths({0, 100, 120, 120, 120});
    table->setRowsSelectable(false);
    table->setRowsMeasured(true);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 8, 16, 8);
    layout->addWidget(table);
    setFocusProxy(table);
}

void StoragePage::show(const QList<MountedVolume> &volumes) {
    model->show(volumes);
}
