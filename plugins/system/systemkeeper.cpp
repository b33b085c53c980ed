// SPDX-License-Identifier: GPL-3.0-or-later
#include "systemkeeper.h"

#include "systemreader.h"
#include "systemreport.h"

#include <reportsdirectory.h>
#include <reportwriter.h>

#include <QDateTime>

using namespace Qt::Literals::StringLiterals;

SystemKeeper::SystemKeeper(std::shared_ptr<SystemReader> reader, QObject *parent)
    : AbstractKeeper(parent), systemReader(std::move(reader)) {}

bool SystemKeeper::canBeLoaded() {
    return false;
}

bool SystemKeeper::canBeSaved() {
    return true;
}

void SystemKeeper::save() {
    const QDateTime now = QDateTime::currentDateTime();
    const QString text = SystemReport::text(now, systemReader->read(), systemReader->readStorage());
    const SavedReport report =
        writeReport(reportsDirectory(), now.toString(u"'system-'yyyyMMdd-HHmmss"_s), text);
    if (report.name.isEmpty())
        emit failed(tr("Report not saved: %1").arg(report.error));
    else
        emit saved(tr("Report saved: %1").arg(report.name));
}

void SystemKeeper::load() {}
