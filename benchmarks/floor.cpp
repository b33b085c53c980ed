// SPDX-License-Identifier: GPL-3.0-or-later
// The floor of every comparison: the launcher's widget tree in plain Qt, with nothing behind it. It opens as many
// libraries as the launcher.
//
//   floor NUMBER_OF_ICONS DIRECTORY
//
// Each icon comes out of a library of its own, DIRECTORY/libbareN.so, and the watcher of the first frame out of
// DIRECTORY/libbareframe.so, as the launcher's do.
#include "floorwindow.h"

#include <QApplication>
#include <QFile>
#include <QPluginLoader>

int main(int argc, char *argv[]) {
    const QApplication application(argc, argv);
    if (argc != 3)
        qFatal("floor NUMBER_OF_ICONS DIRECTORY");
    const QString directory = QFile::decodeName(argv[2]);
    QPluginLoader watcher(directory + QStringLiteral("/libbareframe.so"));
    if (!watcher.instance())
        qFatal("%s", qPrintable(watcher.errorString()));

    FloorWindow window(QByteArray(argv[1]).toInt(), directory);
    // The launcher's battery has its details in a window of their own.
    QWidget details;
    new QWidget(&details);
    window.show();
    return QApplication::exec();
}
