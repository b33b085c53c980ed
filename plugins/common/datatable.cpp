// SPDX-License-Identifier: GPL-3.0-or-later
#include "datatable.h"

#include "dataheader.h"
#include "linesdelegate.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QScroller>

namespace {

constexpr int touchHeight = 52;

} // namespace

DataTable::DataTable(QWidget *parent) : QTableView(parent) {
    setItemDelegate(new LinesDelegate(this));
    setFrameShape(QFrame::NoFrame);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false);
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    QScroller::grabGesture(viewport(), QScroller::LeftMouseButtonGesture);

    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(touchHeight);
    verticalHeader()->setDefaultSectionSize(touchHeight);
    setHorizontalHeader(new DataHeader(this));
}

void DataTable::setColumnWidths(const QList<int> &widths) {
    for (int column = 0; column < widths.size(); ++column) {
        horizontalHeader()->setSectionResizeMode(column,
                                                 widths[column] ? QHeaderView::Fixed : QHeaderView::Stretch);
        if (widths[column])
            setColumnWidth(column, widths[column]);
    }
}

void DataTable::setRowsSelectable(bool selectable) {
    setSelectionMode(selectable ? SingleSelection : NoSelection);
}

void DataTable::setRowsMeasured(bool measured) {
    verticalHeader()->setSectionResizeMode(measured ? QHeaderView::ResizeToContents : QHeaderView::Fixed);
}

void DataTable::keyPressEvent(QKeyEvent *event) {
    QScrollBar *const bar = verticalScrollBar();
    if (selectionMode() == NoSelection && event->key() == Qt::Key_Down)
        bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    else if (selectionMode() == NoSelection && event->key() == Qt::Key_Up)
        bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
    else
        QTableView::keyPressEvent(event);
}
