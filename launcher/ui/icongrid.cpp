// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/icongrid.h"

#include <QWidget>

namespace {

using IconGrid::pageRows;

constexpr int pageColumns = 2;
// A grid allocates every row and column up to the last one used, so a stray number must not reach it. Twice
// the page is what an icon may ask for by its cell.
constexpr int mostRows = 2 * pageRows;
constexpr int mostColumns = 2 * pageColumns;

constexpr char placeholderMark[] = "isPlaceholder";

QWidget *widgetAt(const QGridLayout *grid, int row, int column) {
    const QLayoutItem *const item = grid->itemAtPosition(row, column);
    return item ? item->widget() : nullptr;
}

bool isFree(const QGridLayout *grid, int row, int column) {
    const QWidget *const widget = widgetAt(grid, row, column);
    return !widget || widget->property(placeholderMark).toBool();
}

bool areFree(const QGridLayout *grid, int row, int column, int rows) {
    for (int r = row; r < row + rows; ++r) {
        if (!isFree(grid, r, column))
            return false;
    }
    return true;
}

bool isFarOutside(int row, int column) {
    return row < 0 || column < 0 || row >= mostRows || column >= mostColumns;
}

void moveToFirstFreeCell(const QGridLayout *grid, IconGrid::Placement &placement) {
    placement.wasMoved = true;
    // The row after the last is free in any case, so this ends.
    for (int row = 0;; ++row) {
        for (int column = 0; column < pageColumns; ++column) {
            if (areFree(grid, row, column, placement.rows)) {
                placement.row = row;
                placement.column = column;
                return;
            }
        }
    }
}

bool isRowUsed(const QGridLayout *grid, int row) {
    for (int column = 0; column < grid->columnCount(); ++column) {
        if (grid->itemAtPosition(row, column))
            return true;
    }
    return false;
}

/// Takes the widget out of the cell. Returns it when it was an icon.
QWidget *clearCell(QGridLayout *grid, int row, int column) {
    QWidget *const widget = widgetAt(grid, row, column);
    if (!widget)
        return nullptr;
    const bool wasIcon = !isFree(grid, row, column);
    grid->removeWidget(widget);
    if (!wasIcon)
        return nullptr;
    widget->hide();
    return widget;
}

} // namespace

ScrolledLayout<QGridLayout> *IconGrid::makeButtonsLayout() {
    auto *const grid = new ScrolledLayout<QGridLayout>;
    grid->setHorizontalSpacing(40);
    grid->setVerticalSpacing(8);
    grid->setContentsMargins(40, 6, 40, 6);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

void IconGrid::initGrid(QGridLayout *grid, QWidget *parent) {
    for (int row = 0; row < pageRows; ++row) {
        for (int column = 0; column < pageColumns; ++column) {
            auto *const placeholder = new QWidget(parent);
            placeholder->setProperty(placeholderMark, true);
            // Empty rows are to be as high as those with icons.
            placeholder->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
            grid->addWidget(placeholder, row, column);
        }
    }
}

int IconGrid::rowsOf(const QWidget *icon) {
    return qBound(1, icon->property("rows").toInt(), mostRows);
}

bool IconGrid::isEmpty(const QGridLayout *grid) {
    for (int index = 0; index < grid->count(); ++index) {
        const QWidget *const widget = grid->itemAt(index)->widget();
        if (widget && !widget->property(placeholderMark).toBool())
            return false;
    }
    return true;
}

int IconGrid::shareRows(QGridLayout *grid) {
    int used = 0;
    for (int row = 0; row < grid->rowCount(); ++row) {
        const int stretch = isRowUsed(grid, row) ? 1 : 0;
        used += stretch;
        // Setting it asks for a new layout each time.
        if (grid->rowStretch(row) != stretch)
            grid->setRowStretch(row, stretch);
    }
    return used;
}

IconGrid::Placement IconGrid::place(QGridLayout *grid, QWidget *icon, int row, int column) {
    Placement placement;
    placement.row = row;
    placement.column = column;
    placement.rows = rowsOf(icon);
    if (isFarOutside(row, column))
        moveToFirstFreeCell(grid, placement);
    for (int r = placement.row; r < placement.row + placement.rows; ++r) {
        if (QWidget *const replaced = clearCell(grid, r, placement.column))
            placement.replacedIcons.append(replaced);
    }
    grid->addWidget(icon, placement.row, placement.column, placement.rows, 1);
    return placement;
}
