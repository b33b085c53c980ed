// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reportfiles.h"

#include <QAbstractTableModel>

/// Saved files as rows of a DataTable.
class ReportsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Name, Size, Date, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void show(const QList<ReportFile> &files);
    QByteArray nameAt(int row) const;
    /// The row of the file with that name, or -1.
    int rowOf(const QByteArray &name) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QList<ReportFile> shownFiles;
};
