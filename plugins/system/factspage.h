// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "systemfacts.h"

#include <QMap>
#include <QWidget>

class FactRow;

/// The first level of the System window: what the machine is and does.
class FactsPage : public QWidget {
    Q_OBJECT

public:
    explicit FactsPage(QWidget *parent = nullptr);

    void show(const SystemState &state);
    using QWidget::show;

signals:
    /// The user wants to know more about the storage.
    void storageWanted();

private:
    QMap<SystemFacts::Kind, FactRow *> rows;
};
