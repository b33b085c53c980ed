// SPDX-License-Identifier: GPL-3.0-or-later
#include "floorwindow.h"

#include <QDialog>
#include <QGridLayout>
#include <QImageReader>
#include <QLabel>
#include <QPluginLoader>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedLayout>
#include <QStackedWidget>

namespace {

constexpr int iconsPerPage = 10;
constexpr int columns = 2;

template <typename Child>
Child *hidden(Child *child) {
    child->hide();
    return child;
}

QWidget *makeIcon(int number, const QString &directory) {
    QPluginLoader library(directory + QStringLiteral("/libbare%1.so").arg(number));
    auto *const icon = qobject_cast<QWidget *>(library.instance());
    if (!icon)
        qFatal("%s", qPrintable(library.errorString()));
    return icon;
}

QLabel *makePicture(const QString &name) {
    // As the launcher does: no library for pictures of another kind is opened.
    QImageReader reader(QStringLiteral(":/main/resources/") + name, "png");
    reader.setAutoDetectImageFormat(false);
    auto *const label = new QLabel;
    label->setPixmap(QPixmap::fromImageReader(&reader));
    return label;
}

} // namespace

FloorWindow::FloorWindow(int icons, const QString &directory) {
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(makeHeader());
    layout->addWidget(new QWidget);
    auto *const row = new QHBoxLayout;
    layout->addLayout(row, 1);
    row->addLayout(makeLeftColumn());
    row->addWidget(new QWidget);
    row->addWidget(makePages(icons, directory), 1);
    addFlashQuestion();
    addPanels(qMax(1, (icons + iconsPerPage - 1) / iconsPerPage));
    resize(800, 600);
}

QWidget *FloorWindow::makeHeader() {
    auto *const header = new QLabel(QStringLiteral("Caption"));
    auto *const row = new QHBoxLayout(header);
    auto *const back = new QPushButton(QStringLiteral("Back"));
    row->addWidget(back);
    row->addStretch(1);
    row->addWidget(new QPushButton(QStringLiteral("12:00")));
    back->hide();
    return header;
}

QBoxLayout *FloorWindow::makeLeftColumn() {
    auto *const column = new QVBoxLayout;
    column->addWidget(new QWidget, 1);
    column->addWidget(new QLabel(QStringLiteral("50")));

    QLabel *const report = makePicture(QStringLiteral("saverpt.png"));
    auto *const panel = hidden(new QWidget(report));
    auto *const panelColumn = new QVBoxLayout(panel);
    panelColumn->addWidget(new QLabel(QStringLiteral("Report")));
    panelColumn->addWidget(new QPushButton(QStringLiteral("Save")));
    panelColumn->addWidget(new QPushButton(QStringLiteral("Load")));
    column->addWidget(report);

    QLabel *const settings = makePicture(QStringLiteral("settings.png"));
    column->addWidget(settings);
    column->addWidget(makePicture(QStringLiteral("status.png")));
    // As on the launcher's own page.
    report->hide();
    settings->hide();
    return column;
}

QWidget *FloorWindow::makePages(int icons, const QString &directory) {
    auto *const stack = new QStackedWidget;
    auto *const launcherPage = new QWidget;
    stack->addWidget(launcherPage);
    auto *const column = new QVBoxLayout(launcherPage);
    auto *const pages = new QStackedLayout;
    column->addLayout(pages, 1);
    auto *const bottom = new QWidget;
    auto *const selectors = new QHBoxLayout(bottom);
    column->addWidget(bottom);
    for (int first = 0; first == 0 || first < icons; first += iconsPerPage) {
        pages->addWidget(makePage(first, icons, directory));
        selectors->addWidget(new QPushButton(QStringLiteral("Settings")));
    }
    // The launcher ends its start there, too.
    pages->setCurrentIndex(pages->count() - 1);
    return stack;
}

QWidget *FloorWindow::makePage(int first, int icons, const QString &directory) {
    auto *const page = new QWidget;
    auto *const grid = new QGridLayout(page);
    for (int cell = 0; cell < iconsPerPage; ++cell) {
        // An icon lies over the cell's empty widget.
        grid->addWidget(new QWidget, cell / columns, cell % columns);
        if (first + cell < icons)
            grid->addWidget(makeIcon(first + cell, directory), cell / columns, cell % columns);
    }
    return page;
}

void FloorWindow::addFlashQuestion() {
    auto *const dialog = new QDialog(this);
    auto *const frame = new QFrame;
    (new QVBoxLayout(dialog))->addWidget(frame);
    auto *const column = new QVBoxLayout(frame);
    column->addWidget(new QLabel(QStringLiteral("Do you want to copy all saved reports to flash?")));
    auto *const progressFrame = new QFrame;
    (new QHBoxLayout(progressFrame))->addWidget(new QProgressBar);
    column->addWidget(progressFrame);
    auto *const buttons = new QHBoxLayout;
    buttons->addWidget(new QPushButton(QStringLiteral("Yes")));
    buttons->addWidget(new QPushButton(QStringLiteral("No")));
    column->addLayout(buttons);
}

void FloorWindow::addPanels(int pages) {
    for (int page = 0; page < pages; ++page)
        hidden(new QWidget(this));
}
