// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextEdit>

/// A message to be read: a bold text and below it a detail, both plain text, wrapped wherever they have to be. What is
/// too high scrolls under the thumb. Only the first 4,000 characters of each are shown. GUI thread only.
class MessageView : public QTextEdit {
    Q_OBJECT

public:
    static constexpr qsizetype longestShown = 4000;

    explicit MessageView(QWidget *parent = nullptr);
    ~MessageView() override;

    void setMessage(const QString &text, const QString &detail);
    /// Takes the height that the message needs at `width`, at most `mostHeight`.
    void fit(int width, int mostHeight);
    /// Up, Down and the page keys scroll; true when `key` was one of them.
    bool scrollByKey(int key);
};
