// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "systemstate.h"

#include <QWidget>

class DataTable;
class StorageModel;

/// The second level of the System window: every mounted file system.
class StoragePage : public QWidget {
    Q_OBJECT

public:
    explicit StoragePage(QWidget *parent = nullptr);

    void show(const QList<MountedVolume> &volumes);
    using QWidget::show;

private:
    StorageModel *model;
    DataTable *table;
};
