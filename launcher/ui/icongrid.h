// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <thumbscroll.h>

#include <QGridLayout>
#include <QList>

class QWidget;

/// The grid of icons on a collection's page: five rows by two columns, more when icons ask for more.
namespace IconGrid {

/// Rows that share the page without scrolling.
constexpr int pageRows = 5;

/// What became of an icon.
struct Placement {
    int row = 0;
    int column = 0;
    int rows = 1;
    /// The icons that had the cells until now and have left the page's grid.
    QList<QWidget *> replacedIcons;
    /// The cell asked for was far outside the grid, so the first free one was taken.
    bool wasMoved = false;
};

/// The empty layout of a page.
ScrolledLayout<QGridLayout> *makeButtonsLayout();

/// Puts an empty placeholder into each of the first five rows' cells, so that they keep their size before icons
/// arrive. `parent` owns the placeholders until the grid's own widget takes them.
void initGrid(QGridLayout *grid, QWidget *parent);

/// Number of grid rows that the icon asks to span with its property "rows".
int rowsOf(const QWidget *icon);

/// Whether there is no icon, only placeholders or nothing.
bool isEmpty(const QGridLayout *grid);

/// Makes all rows that hold anything equally high, those too in which only taller icons stand; rows that are left
/// out between others take no room. Returns the number of rows that hold anything.
int shareRows(QGridLayout *grid);

/// Places `icon` at the cell, over what was there. A replaced icon is hidden, not deleted.
Placement place(QGridLayout *grid, QWidget *icon, int row, int column);

} // namespace IconGrid
