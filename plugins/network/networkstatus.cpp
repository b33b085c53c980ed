// SPDX-License-Identifier: GPL-3.0-or-later
#include "networkstatus.h"

#include "networktexts.h"

#include <visibletimer.h>

NetworkStatus::NetworkStatus(const QString &directory, QWidget *parent)
    : StatusLabel(parent), netDirectory(directory) {
    auto *const timer = new VisibleTimer(this);
    connect(timer, &VisibleTimer::beat, this, &NetworkStatus::refresh);
    // The panel is measured before it appears.
    refresh();
}

void NetworkStatus::refresh() {
    const QColor ink = palette().color(QPalette::WindowText);
    const std::optional<QString> address = NetworkTexts::primaryAddress(NetworkReader(netDirectory).read());
    setCell(0, 0, Qt::AlignLeft, tr("Network:"), ink, 0, false);
    setCell(1, 0, Qt::AlignRight, address.value_or(tr("No address")), ink, 0, false);
}
