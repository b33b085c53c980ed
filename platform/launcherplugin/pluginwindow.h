// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// The window that a plug-in shows in the launcher's stack.
///
/// Any QWidget may be shown there; this one also takes part in the header: its `windowTitle()` becomes the
/// caption when it is brought up, and its signals change caption and Back button while it is the current page.
class PluginWindow : public QWidget {
    Q_OBJECT

public:
    explicit PluginWindow(QWidget *parent = nullptr);
    ~PluginWindow() override;

    /// Goes back one level inside the window. True when there was no level left and the launcher should leave
    /// the window: Back calls this once, Home again and again until it says true. The base has no levels.
    virtual bool stepBack();

signals:
    /// Changes the text of the Back button; "default" brings back the name of the current page.
    void setBackButtonText(QString text);
    /// Changes the caption.
    void setTitle(QString title);
};
