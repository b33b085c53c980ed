// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reportfiles.h"

#include <QWidget>

class DataTable;
class QLabel;
class QPushButton;
class QStackedLayout;
class ReportsModel;

/// The first level of the Reports window: what has been saved.
class ReportListPage : public QWidget {
    Q_OBJECT

public:
    explicit ReportListPage(QWidget *parent = nullptr);

    /// Shows the files; the one that is chosen stays chosen, or the one that takes its place.
    void show(const ReportListing &listing, const QString &freeSpace);
    using QWidget::show;
    /// The file that is chosen; empty when none is.
    QByteArray chosenFile() const;
    /// Gives the keys to the list.
    void focusList();

signals:
    void openWanted();
    void deleteWanted();

private:
    void choose(int row);
    void updateButtons();
    QString summary(const ReportListing &listing, const QString &freeSpace) const;

    ReportsModel *model;
    DataTable *table;
    QLabel *emptyLabel;
    QLabel *summaryLabel;
    QPushButton *openButton;
    QPushButton *deleteButton;
    QStackedLayout *listing;
};
