// SPDX-License-Identifier: GPL-3.0-or-later
#include "reportlistpage.h"

#include "reportsmodel.h"

#include <datatable.h>
#include <fontsizes.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QStackedLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int touchHeight = 52;
constexpr int buttonWidth = 132;

QPushButton *makeButton(const QString &text) {
    auto *const button = new QPushButton(text);
    button->setFont(FontSizes::sized(button->font(), FontSizes::Text, QFont::Bold));
    button->setMinimumSize(buttonWidth, touchHeight);
    // Enter presses it too.
    button->setAutoDefault(true);
    return button;
}

} // namespace

ReportListPage::ReportListPage(QWidget *parent)
    : QWidget(parent),
      model(new ReportsModel(this)),
      table(new DataTable),
      emptyLabel(new QLabel),
      summaryLabel(new QLabel),
      openButton(makeButton(tr("Open"))),
      deleteButton(makeButton(tr("Delete"))),
      listing(new QStackedLayout) {
    table->setModel(model);
    table->setColumnWidths({0, 124, 216});
    emptyLabel->setAlignment(Qt::AlignCenter);
    emptyLabel->setWordWrap(true);
    emptyLabel->setFont(FontSizes::sized(font(), FontSizes::Title, QFont::Bold));
    emptyLabel->setForegroundRole(QPalette::PlaceholderText);
    listing->addWidget(table);
    listing->addWidget(emptyLabel);

    summaryLabel->setFont(FontSizes::sized(font(), FontSizes::Text, QFont::Normal));
    summaryLabel->setForegroundRole(QPalette::PlaceholderText);
    auto *const bottom = new QHBoxLayout;
    bottom->setContentsMargins(12, 0, 0, 0);
    bottom->setSpacing(8);
    bottom->addWidget(summaryLabel, 1);
    bottom->addWidget(deleteButton);
    bottom->addWidget(openButton);

    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 8, 16, 8);
    layout->setSpacing(8);
    layout->addLayout(listing, 1);
    layout->addLayout(bottom);

    connect(table, &DataTable::activated, this, &ReportListPage::openWanted);
    connect(openButton, &QPushButton::clicked, this, &ReportListPage::openWanted);
    connect(deleteButton, &QPushButton::clicked, this, &ReportListPage::deleteWanted);
    connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ReportListPage::updateButtons);
    updateButtons();
}

void ReportListPage::show(const ReportListing &reports, const QString &freeSpace) {
    const QByteArray chosen = chosenFile();
    const int chosenRow = table->currentIndex().row();
    model->show(reports.files);
    if (!chosen.isEmpty()) {
        const int row = model->rowOf(chosen);
        choose(row >= 0 ? row : qMin(chosenRow, model->rowCount() - 1));
    }
    emptyLabel->setText(reports.error.isEmpty() ? tr("No reports yet")
                                                : tr("The reports cannot be listed: %1").arg(reports.error));
    listing->setCurrentWidget(reports.files.isEmpty() ? static_cast<QWidget *>(emptyLabel) : table);
    summaryLabel->setText(summary(reports, freeSpace));
    updateButtons();
}

QByteArray ReportListPage::chosenFile() const {
    const QModelIndexList rows = table->selectionModel()->selectedRows();
    return rows.isEmpty() ? QByteArray() : model->nameAt(rows.first().row());
}

void ReportListPage::focusList() {
    table->setFocus();
}

void ReportListPage::choose(int row) {
    if (row >= 0)
        table->selectRow(row);
}

void ReportListPage::updateButtons() {
    const bool isChosen = table->selectionModel()->hasSelection();
    openButton->setEnabled(isChosen);
    deleteButton->setEnabled(isChosen);
}

QString ReportListPage::summary(const ReportListing &reports, const QString &freeSpace) const {
    const QString count = QLocale().toString(reports.files.size()) + (reports.isCut ? u"+"_s : QString());
    const QString files = tr("Files: %1").arg(count);
    return freeSpace.isEmpty() ? files : tr("%1, free: %2").arg(files, freeSpace);
}
