// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class BatteryIndicator;
class LedPanel;
class PopupLabel;
class PressingLabel;
class QHBoxLayout;
class QStackedWidget;
class QVBoxLayout;
class QWidget;

/// The static widget tree of the launcher window: a left column of status widgets beside the stack in which the
/// icon pages and the plug-in windows appear. Every widget and layout carries its field's name as object name.
class Ui_LauncherWindow {
public:
    QVBoxLayout *mainLayout = nullptr;
    QHBoxLayout *mainHLayout = nullptr;
    QVBoxLayout *verticalLayout_2 = nullptr;
    LedPanel *ledPanel = nullptr;
    BatteryIndicator *labelBattery = nullptr;
    PopupLabel *labelReport = nullptr;
    PressingLabel *labelSettings = nullptr;
    PressingLabel *labelInfo = nullptr;
    QStackedWidget *stackedWidget = nullptr;
    QWidget *pageLauncher = nullptr;
    QVBoxLayout *pageLauncherLayout = nullptr;

    /// Builds the tree on `window` and connects the window's slots named `on_WIDGET_SIGNAL`.
    void setupUi(QWidget *window);
    /// Sets every text of the tree.
    void retranslateUi(QWidget *window);

private:
    void setupLayouts(QWidget *window);
    void setupLeftColumn(QWidget *window);
    void setupStack(QWidget *window);
};
