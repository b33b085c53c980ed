// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <translucentwindow.h>

class QBoxLayout;
class QFrame;
class QLabel;
class QProgressBar;
class WarningWindow;

/// Asks whether to copy the saved reports to the drive that was inserted, and shows how far the copy is. The answer goes
/// to the launcher's store, for the plug-ins that save reports. GUI thread only.
class FlashDialog : public TranslucentWindow {
    Q_OBJECT

public:
    explicit FlashDialog(QWidget *parent);

public slots:
    /// `curCount` of `maxCount` are still to do.
    void setProgress(int curCount, int maxCount);
    /// Asks, and returns when the dialog is closed: by "No", by the end of the copy or with the drive. While an earlier
    /// call has not returned yet, the question follows that one, if there is a drive then.
    void showDialog();
    /// Whether the dialog is open or not.
    void showWarning(const QString &msg);
    /// The copy is over.
    void closeGracefully();
    void exportClicked();
    /// Keys close the question only, not a copy that is running.
    void reject() override;

signals:
    void exportFiles();

protected:
    void fitContents() override;

private:
    void setupFrame();
    QLabel *makeQuestion();
    QFrame *makeProgressFrame();
    QBoxLayout *makeButtonRow();
    void enableButtons(bool enable);
    void ask();
    WarningWindow *warning();

    QFrame *contentFrame = nullptr;
    QLabel *question = nullptr;
    QPushButton *yesButton = nullptr;
    QPushButton *noButton = nullptr;
    QProgressBar *progressBar = nullptr;
    WarningWindow *warningWindow = nullptr;
    bool isAsking = false;
    bool isAskedAgain = false;
};
