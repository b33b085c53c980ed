// SPDX-License-Identifier: GPL-3.0-or-later
// The ways into plug-in windows and out of them again.
#include "plugins/pluginscollection.h"
#include "ui/apppopups.h"
#include "ui/launcherheader.h"
#include "ui/launcherwindow.h"
#include "ui/ui_launcherwindow.h"
#include "ui/vboxpopup.h"

#include <abstractkeeper.h>
#include <genericplugin.h>
#include <pluginwindow.h>
#include <popuplabel.h>

#include <QApplication>
#include <QPushButton>
#include <QStackedWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

// A window that claims another level every time must not keep Home from working.
constexpr int mostLevels = 1000;

} // namespace

void LauncherWindow::showPluginWindow(QWidget *window) {
    if (!window)
        return;
    currentPlugin = qobject_cast<GenericPlugin *>(sender());
    if (ui->stackedWidget->indexOf(window) < 0)
        addToStack(window);
    ui->stackedWidget->setCurrentWidget(window);
    shownWindow = window;
    updateReportLabel();
    const bool hasSettings = currentCollection && currentCollection->hasSettings(currentPlugin);
    ui->labelSettings->setVisible(settingsCaller || hasSettings);
    header->setBackButtonText(cardType());
    setCaption(window->windowTitle());
}

void LauncherWindow::addToStack(QWidget *window) {
    window->setAutoFillBackground(true);
    ui->stackedWidget->addWidget(window);
    if (qobject_cast<PluginWindow *>(window)) {
        connect(window, SIGNAL(setBackButtonText(QString)), this, SLOT(setBackButtonText(QString)));
        connect(window, SIGNAL(setTitle(QString)), this, SLOT(setCaption(QString)));
    }
    if (AbstractKeeper *const keeper = currentPlugin ? currentPlugin->keeper() : nullptr) {
        connect(keeper, SIGNAL(canbeSaved(bool)), this, SLOT(enableSaveButton(bool)));
        connect(keeper, SIGNAL(canbeLoaded(bool)), this, SLOT(enableLoadButton(bool)));
    }
}

void LauncherWindow::updateReportLabel() {
    AbstractKeeper *const keeper = currentPlugin ? currentPlugin->keeper() : nullptr;
    ui->labelReport->setVisible(keeper);
    if (keeper) {
        loadButton->setEnabled(keeper->canBeLoaded());
        saveButton->setEnabled(keeper->canBeSaved());
    }
}

void LauncherWindow::setCaption(const QString &title) {
    const auto *const window = qobject_cast<PluginWindow *>(sender());
    if (header && (!window || window == ui->stackedWidget->currentWidget()))
        header->setText(title);
}

void LauncherWindow::setBackButtonText(const QString &text) {
    const auto *const window = qobject_cast<QWidget *>(sender());
    if (window && window == ui->stackedWidget->currentWidget())
        header->setBackButtonText(text == "default"_L1 ? cardType() : text);
}

void LauncherWindow::showActiveCardPage() {
    ui->stackedWidget->setCurrentWidget(ui->pageLauncher);
    setCaption(cardType());
    ui->labelReport->hide();
    ui->labelSettings->hide();
    header->hideBackButton();
    shownWindow = nullptr;
    currentPlugin = nullptr;
    settingsCaller = nullptr;
}

void LauncherWindow::pluginWindowRemoved() {
    // The stack would go on with some other plug-in's window.
    if (shownWindow && ui->stackedWidget->indexOf(shownWindow) < 0)
        showActiveCardPage();
}

bool LauncherWindow::stepBackInWindow() {
    auto *const window = qobject_cast<PluginWindow *>(ui->stackedWidget->currentWidget());
    return !window || window->stepBack();
}

void LauncherWindow::hideActiveDialog() {
    QWidget *const active = QApplication::activeWindow();
    if (active && active->windowType() == Qt::Dialog)
        active->hide();
}

void LauncherWindow::backButton_clicked() {
    if (ui->stackedWidget->currentWidget() == ui->pageLauncher)
        return;
    if (!stepBackInWindow())
        return;
    hideActiveDialog();
    if (settingsCaller) {
        settingsCaller->showWindow();
        settingsCaller = nullptr;
    } else {
        showActiveCardPage();
    }
}

void LauncherWindow::goHome() {
    if (ui->stackedWidget->currentWidget() == ui->pageLauncher)
        return;
    for (int level = 0; level < mostLevels && !stepBackInWindow(); ++level) {
    }
    hideActiveDialog();
    showActiveCardPage();
}

void LauncherWindow::on_labelSettings_clicked() {
    if (!settingsCaller)
        settingsCaller = currentPlugin;
    if (!currentCollection)
        return;
    const QList<GenericPlugin *> plugins = currentCollection->settingPlugins(settingsCaller);
    if (plugins.size() == 1)
        plugins.first()->showWindow();
    else if (VBoxPopup *const popup = popups->popup(settingsCaller, plugins))
        popup->show();
}
