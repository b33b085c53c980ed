// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <pluginwindow.h>

class FolderWatch;
class MessageLine;
class QStackedLayout;
class QuestionPanel;
class ReportListPage;
class ReportViewPage;

/// The window of the Reports plug-in: the saved files, and what is in them. Follows the directory while it can
/// be seen.
class ReportsWindow : public PluginWindow {
    Q_OBJECT

public:
    explicit ReportsWindow(QWidget *parent = nullptr);

    bool stepBack() override;
    /// Tells the launcher's header which level is shown; the header has forgotten it when the window is brought
    /// up again.
    void announceLevel();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void reload();
    void openChosen();
    void askToDelete();
    void deleteAsked();
    void showList();
    bool isListShown() const;

    QString directory;
    QByteArray askedFile;
    QStackedLayout *levels;
    ReportListPage *listPage;
    ReportViewPage *viewPage;
    MessageLine *messageLine;
    QuestionPanel *question;
    FolderWatch *folderWatch;
};
