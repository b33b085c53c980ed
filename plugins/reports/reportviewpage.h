// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class FileContent;
class PictureView;
class QLabel;
class QPlainTextEdit;
class QStackedLayout;

/// The second level of the Reports window: what is in a file.
class ReportViewPage : public QWidget {
    Q_OBJECT

public:
    explicit ReportViewPage(QWidget *parent = nullptr);

    void show(const FileContent &content);
    using QWidget::show;
    /// Gives back the memory that the content took.
    void clear();

private:
    QPlainTextEdit *textView;
    PictureView *pictureView;
    QLabel *noteLabel;
    QStackedLayout *views;
};
