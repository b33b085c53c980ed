// SPDX-License-Identifier: GPL-3.0-or-later
#include "networkwindow.h"

#include "interfacesmodel.h"

#include <datatable.h>
#include <visibletimer.h>

#include <QVBoxLayout>

NetworkWindow::NetworkWindow(std::unique_ptr<NetworkReader> reader, QWidget *parent)
    : PluginWindow(parent),
      networkReader(std::move(reader)),
      model(new InterfacesModel(this)),
      table(new DataTable(this)),
      refreshTimer(new VisibleTimer(this)) {
    setWindowTitle(tr("Network"));
    table->setModel(model);
    table->setColumnWidths({180, 0, 112, 112});
    table->setRowsSelectable(false);
    table->setRowsMeasured(true);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 8, 16, 8);
    layout->addWidget(table);
    connect(refreshTimer, &VisibleTimer::beat, this, &NetworkWindow::refresh);
}

NetworkWindow::~NetworkWindow() = default;

void NetworkWindow::refresh() {
    model->show(networkReader->read());
}
