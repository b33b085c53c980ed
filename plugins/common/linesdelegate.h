// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

/// Draws a cell of a DataTable: one line of strong text, small lines below it, and a hairline under the row.
///
/// Either may be absent. A row is as high as its cells need, never less than a thumb does.
class LinesDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    enum Role {
        StrongLine = Qt::DisplayRole,
        SmallLines = Qt::UserRole, ///< a list of texts
        FirstLamp,                 ///< a MeasQuality: the lamp in front of the first small line
    };

    /// Room at the left and at the right of a cell's texts, in pixels.
    static constexpr int padding = 12;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
