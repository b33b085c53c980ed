// SPDX-License-Identifier: GPL-3.0-or-later
#include "systemwindow.h"

#include "factspage.h"
#include "storagepage.h"
#include "systemreader.h"

#include <messageline.h>
#include <refreshrate.h>
#include <visibletimer.h>

#include <QStackedLayout>

using namespace Qt::Literals::StringLiterals;

SystemWindow::SystemWindow(std::shared_ptr<SystemReader> reader, QWidget *parent)
    : PluginWindow(parent),
      systemReader(std::move(reader)),
      levels(new QStackedLayout),
      factsPage(new FactsPage),
      storagePage(new StoragePage),
      messageLine(new MessageLine(this)),
      refreshTimer(new VisibleTimer(this)) {
    levels->addWidget(factsPage);
    levels->addWidget(storagePage);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(levels);
    layout->addWidget(messageLine);
    setWindowTitle(tr("System"));

    connect(factsPage, &FactsPage::storageWanted, this, &SystemWindow::showStorage);
    connect(refreshTimer, &VisibleTimer::appeared, this, &SystemWindow::applyRefreshRate);
    connect(refreshTimer, &VisibleTimer::beat, this, &SystemWindow::refresh);
}

bool SystemWindow::stepBack() {
    if (levels->currentWidget() == factsPage)
        return true;
    showFacts();
    return false;
}

void SystemWindow::announceLevel() {
    const bool isTop = levels->currentWidget() == factsPage;
    emit setBackButtonText(isTop ? u"default"_s : tr("System"));
    emit setTitle(windowTitle());
}

void SystemWindow::tellSuccess(const QString &message) {
    messageLine->tellSuccess(message);
}

void SystemWindow::tellFailure(const QString &message) {
    messageLine->tellFailure(message);
}

void SystemWindow::hideEvent(QHideEvent *event) {
    messageLine->clear();
    PluginWindow::hideEvent(event);
}

void SystemWindow::applyRefreshRate() {
    refreshTimer->setInterval(RefreshRate::configured());
}

void SystemWindow::refresh() {
    if (levels->currentWidget() == factsPage)
        factsPage->show(systemReader->read());
    else
        storagePage->show(systemReader->readStorage());
}

void SystemWindow::showFacts() {
    levels->setCurrentWidget(factsPage);
    setWindowTitle(tr("System"));
    factsPage->setFocus();
    refresh();
    announceLevel();
}

void SystemWindow::showStorage() {
    levels->setCurrentWidget(storagePage);
    setWindowTitle(tr("Storage"));
    storagePage->setFocus();
    refresh();
    announceLevel();
}
