// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTableView>

/// A table in the house's look: captions in soft ink, hairlines between the rows, no grid; scrolls by pixels and
/// by flicking. Rows that do not fit show a scroll bar for a thumb.
///
/// The model's cells are drawn by LinesDelegate. The first column that is told to stretch takes what the others
/// leave.
class DataTable : public QTableView {
    Q_OBJECT

public:
    explicit DataTable(QWidget *parent = nullptr);

    /// Gives each column its width in pixels; 0 stretches it. To be called once the model is set.
    void setColumnWidths(const QList<int> &widths);
    /// Whether a row can be chosen. Without that the arrow keys scroll.
    void setRowsSelectable(bool selectable);
    /// Whether rows differ in height, as their cells need it. Without that every row has the least height, and
    /// nothing has to be measured.
    void setRowsMeasured(bool measured);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
