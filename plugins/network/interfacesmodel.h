// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networkreader.h"

#include <QAbstractTableModel>

/// The interfaces as rows of a DataTable. An interface that goes or comes takes or adds its own row only, so
/// that the table stays where the user has scrolled it.
class InterfacesModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Name, Addresses, Received, Sent, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void show(const QList<MeasuredInterface> &interfaces);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void removeGone(const QList<MeasuredInterface> &interfaces);
    void setRow(int row, const MeasuredInterface &measured);
    static QString strongLine(const MeasuredInterface &measured, int column);
    static QStringList smallLines(const MeasuredInterface &measured, int column);

    QList<MeasuredInterface> rows;
};
