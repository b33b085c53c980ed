// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "systemstate.h"

#include <QAbstractTableModel>

/// The mounted file systems as rows of a DataTable.
class StorageModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Place, Use, Used, Size, Free, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void show(const QList<MountedVolume> &volumes);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const MountedVolume &mounted, int column) const;

    QList<MountedVolume> shownVolumes;
};
