// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QMap>
#include <QWidget>

/// A table of short texts: captions and values below each other, with a hairline under each row. Figures in one
/// column stand below each other. GUI thread only.
class StatusLabel : public QWidget {
    Q_OBJECT

public:
    explicit StatusLabel(QWidget *parent = nullptr);

    /// Sets one cell; the table grows as far as needed, up to 16 columns and 64 rows, beyond which a cell is
    /// passed over. An empty text takes no space, nor does a row of them. `minimumWidth` is that of the cell in pixels, `isSoft` sets
    /// the text lighter.
    void setCell(int column, int row, Qt::Alignment alignment, const QString &text, const QColor &color,
                 int minimumWidth, bool isSoft);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Cell {
        Qt::Alignment alignment;
        QString text;
        QColor color;
        int minimumWidth = 0;
        bool isSoft = false;

        bool operator==(const Cell &) const = default;
    };
    using Row = QMap<int, Cell>;

    QFont fontOf(const Cell &cell) const;
    int widthOf(const Cell &cell) const;
    int widthOf(const Row &row) const;
    int heightNeeded() const;
    void drawRow(QPainter &painter, const Row &row, const QRect &rect) const;

    QMap<int, Row> rows;
};
