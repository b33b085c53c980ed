// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

/// A question with Yes and No that lies over its whole parent until it is answered. Escape says No. Not a window
/// of its own, so that Home and Back stay with the launcher.
class QuestionPanel : public QWidget {
    Q_OBJECT

public:
    explicit QuestionPanel(QWidget *parent);

    /// `subject`, what the question is about, stands in one line of its own and is elided where it is long.
    void ask(const QString &question, const QString &subject);

signals:
    void accepted();
    /// Answered, either way; the panel is hidden already.
    void closed();

public slots:
    void refuse();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void accept();

    QWidget *box;
    QLabel *questionLabel;
    QLabel *subjectLabel;
    QPushButton *yesButton;
    QPushButton *noButton;
};
