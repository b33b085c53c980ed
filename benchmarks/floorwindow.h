// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QBoxLayout;

/// The launcher's widgets in plain Qt, one for one: what inherits, contains and hides what is as in LauncherWindow, and so
/// are the pictures; texts of about the same length stand in for the launcher's. Nothing happens when one is pressed. A
/// test compares both trees.
class FloorWindow : public QWidget {
    Q_OBJECT

public:
    /// Icons come out of libraries of their own, `directory`/libbareN.so, as the launcher's do.
    FloorWindow(int icons, const QString &directory);

private:
    QWidget *makeHeader();
    QBoxLayout *makeLeftColumn();
    QWidget *makePages(int icons, const QString &directory);
    QWidget *makePage(int first, int icons, const QString &directory);
    void addFlashQuestion();
    void addPanels(int pages);
};
