// SPDX-License-Identifier: GPL-3.0-or-later
#include "reportswindow.h"

#include "filecontent.h"
#include "folderwatch.h"
#include "questionpanel.h"
#include "reportlistpage.h"
#include "reportviewpage.h"

#include <amounts.h>
#include <messageline.h>
#include <reportsdirectory.h>
#include <volume.h>

#include <QDir>
#include <QKeyEvent>
#include <QStackedLayout>

using namespace Qt::Literals::StringLiterals;

ReportsWindow::ReportsWindow(QWidget *parent)
    : PluginWindow(parent),
      levels(new QStackedLayout),
      listPage(new ReportListPage),
      viewPage(new ReportViewPage),
      messageLine(new MessageLine(this)),
      question(new QuestionPanel(this)),
      folderWatch(new FolderWatch(this)) {
    levels->addWidget(listPage);
    levels->addWidget(viewPage);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(levels);
    layout->addWidget(messageLine);
    setWindowTitle(tr("Reports"));

    connect(listPage, &ReportListPage::openWanted, this, &ReportsWindow::openChosen);
    connect(listPage, &ReportListPage::deleteWanted, this, &ReportsWindow::askToDelete);
    connect(question, &QuestionPanel::accepted, this, &ReportsWindow::deleteAsked);
    connect(question, &QuestionPanel::closed, listPage, &ReportListPage::focusList);
    connect(folderWatch, &FolderWatch::changed, this, &ReportsWindow::reload);
}

bool ReportsWindow::stepBack() {
    if (question->isVisible()) {
        question->refuse();
        return false;
    }
    if (isListShown())
        return true;
    showList();
    return false;
}

void ReportsWindow::announceLevel() {
    emit setBackButtonText(isListShown() ? u"default"_s : tr("Reports"));
    emit setTitle(windowTitle());
}

void ReportsWindow::showEvent(QShowEvent *event) {
    PluginWindow::showEvent(event);
    directory = reportsDirectory();
    folderWatch->start(directory);
    reload();
}

void ReportsWindow::hideEvent(QHideEvent *event) {
    folderWatch->stop();
    messageLine->clear();
    question->hide();
    PluginWindow::hideEvent(event);
}

void ReportsWindow::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Delete && isListShown())
        askToDelete();
    else
        PluginWindow::keyPressEvent(event);
}

void ReportsWindow::reload() {
    // A directory that is still to be made will lie where the home directory does.
    const std::optional<Volume> volume =
        volumeOf(QFileInfo::exists(directory) ? directory : QDir::homePath());
    listPage->show(reportsIn(directory), volume ? Amounts::bytes(volume->available) : QString());
}

void ReportsWindow::openChosen() {
    const QByteArray name = listPage->chosenFile();
    if (name.isEmpty())
        return;
    messageLine->clear();
    viewPage->show(FileContent::read(directory, name));
    levels->setCurrentWidget(viewPage);
    setWindowTitle(shownName(name));
    viewPage->setFocus();
    announceLevel();
}

void ReportsWindow::askToDelete() {
    askedFile = listPage->chosenFile();
    if (askedFile.isEmpty())
        return;
    messageLine->clear();
    question->ask(tr("Delete this file?"), shownName(askedFile));
}

void ReportsWindow::deleteAsked() {
    if (const std::optional<QString> error = deleteReport(directory, askedFile))
        messageLine->tellFailure(tr("Not deleted: %1").arg(*error));
    reload();
}

void ReportsWindow::showList() {
    viewPage->clear();
    levels->setCurrentWidget(listPage);
    setWindowTitle(tr("Reports"));
    listPage->focusList();
    announceLevel();
}

bool ReportsWindow::isListShown() const {
    return levels->currentWidget() == listPage;
}
