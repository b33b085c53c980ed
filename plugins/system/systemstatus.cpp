// SPDX-License-Identifier: GPL-3.0-or-later
#include "systemstatus.h"

#include "systemfacts.h"
#include "systemreader.h"

#include <refreshrate.h>
#include <visibletimer.h>

using namespace Qt::Literals::StringLiterals;

SystemStatus::SystemStatus(std::shared_ptr<SystemReader> reader, QWidget *parent)
    : StatusLabel(parent), systemReader(std::move(reader)) {
    auto *const timer = new VisibleTimer(this);
    connect(timer, &VisibleTimer::appeared, this, [timer] { timer->setInterval(RefreshRate::configured()); });
    connect(timer, &VisibleTimer::beat, this, &SystemStatus::refresh);
    // The panel is measured before it appears.
    refresh();
}

void SystemStatus::refresh() {
    const SystemState state = systemReader->read();
    const Fact kernel = SystemFacts::fact(SystemFacts::Kernel, state);
    const Fact memory = SystemFacts::fact(SystemFacts::Memory, state);
    const Fact uptime = SystemFacts::fact(SystemFacts::Uptime, state);
    setLine(0, kernel.caption, kernel.text);
    setLine(1, tr("Load"), state.load ? u"%1%"_s.arg(*state.load) : tr("Unknown"));
    setLine(2, memory.caption, memory.text);
    setLine(3, uptime.caption, uptime.text);
}

void SystemStatus::setLine(int row, const QString &caption, const QString &text) {
    const QColor ink = palette().color(QPalette::WindowText);
    setCell(0, row, Qt::AlignLeft, caption + u':', ink, 0, false);
    setCell(1, row, Qt::AlignRight, text, ink, 0, false);
}
