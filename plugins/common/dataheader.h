// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHeaderView>

/// The captions of a DataTable: soft ink, standing exactly over the texts of their columns.
class DataHeader : public QHeaderView {
    Q_OBJECT

public:
    explicit DataHeader(QWidget *parent = nullptr);

protected:
    void paintSection(QPainter *painter, const QRect &rect, int section) const override;
};
