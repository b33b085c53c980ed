// SPDX-License-Identifier: GPL-3.0-or-later
// The floor of every comparison: the launcher's widget tree in plain Qt, with nothing behind it.
//
//   floor NUMBER_OF_ICONS [DIRECTORY]
//
// With a directory each icon comes out of a library of its own, DIRECTORY/libbareN.so, as the launcher's do.
// With ZR_BENCH_START_NS set it ends after its first frame, else it goes on as any program does.
#include "firstframe.h"

#include <QApplication>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QPluginLoader>
#include <QPushButton>
#include <QStackedWidget>

#include <optional>

namespace {

constexpr int iconsPerPage = 10;
constexpr int columns = 2;

QWidget *makeIcon(int number, const QString &directory) {
    if (directory.isEmpty())
        return new QPushButton(QStringLiteral("Measurement"));
    QPluginLoader library(directory + QStringLiteral("/libbare%1.so").arg(number));
    auto *const icon = qobject_cast<QWidget *>(library.instance());
    if (!icon)
        qFatal("%s", qPrintable(library.errorString()));
    return icon;
}

QWidget *makePage(int first, int icons, const QString &directory) {
    auto *const page = new QWidget;
    auto *const grid = new QGridLayout(page);
    for (int cell = 0; cell < iconsPerPage; ++cell) {
        QWidget *const content = first + cell < icons ? makeIcon(first + cell, directory) : new QWidget;
        grid->addWidget(content, cell / columns, cell % columns);
    }
    return page;
}

QLayout *makeHeader() {
    auto *const header = new QHBoxLayout;
    header->addWidget(new QPushButton(QStringLiteral("Back")));
    header->addWidget(new QLabel(QStringLiteral("Caption")), 1);
    header->addWidget(new QPushButton(QStringLiteral("12:00")));
    return header;
}

QLayout *makeLeftColumn() {
    auto *const column = new QVBoxLayout;
    column->addWidget(new QWidget, 1);
    for (int label = 0; label < 3; ++label)
        column->addWidget(new QLabel(QStringLiteral("i")));
    return column;
}

} // namespace

int main(int argc, char *argv[]) {
    const QApplication application(argc, argv);
    std::optional<FirstFrame> firstFrame;
    if (qEnvironmentVariableIsSet("ZR_BENCH_START_NS"))
        firstFrame.emplace();
    const int icons = argc > 1 ? QByteArray(argv[1]).toInt() : 1;
    const QString directory = argc > 2 ? QFile::decodeName(argv[2]) : QString();

    QWidget window;
    auto *const layout = new QVBoxLayout(&window);
    layout->addLayout(makeHeader());
    auto *const row = new QHBoxLayout;
    layout->addLayout(row, 1);
    row->addLayout(makeLeftColumn());
    auto *const content = new QVBoxLayout;
    row->addLayout(content, 1);
    auto *const pages = new QStackedWidget;
    content->addWidget(pages, 1);
    auto *const selectors = new QHBoxLayout;
    content->addLayout(selectors);
    for (int first = 0; first == 0 || first < icons; first += iconsPerPage) {
        pages->addWidget(makePage(first, icons, directory));
        selectors->addWidget(new QPushButton(QStringLiteral("Page")));
    }
    window.resize(800, 600);
    window.show();
    return QApplication::exec();
}
