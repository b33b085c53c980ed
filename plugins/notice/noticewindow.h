// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "leftoutnote.h"

#include <pluginwindow.h>

class MessageLine;
class QPlainTextEdit;
class QPushButton;

/// Tells which plug-in was left out and why, with the trace to read and to save.
class NoticeWindow : public PluginWindow {
    Q_OBJECT

public:
    explicit NoticeWindow(const LeftOutNote &note, QWidget *parent = nullptr);

protected:
    void hideEvent(QHideEvent *event) override;

private:
    void save();

    LeftOutNote shownNote;
    QPlainTextEdit *traceView;
    QPushButton *saveButton;
    MessageLine *messageLine;
};
