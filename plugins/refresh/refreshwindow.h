// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <pluginwindow.h>

class QButtonGroup;
class QLayout;

/// Lets the user choose how often live figures are read anew. A choice is stored at once.
class RefreshWindow : public PluginWindow {
    Q_OBJECT

public:
    explicit RefreshWindow(QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;

private:
    QLayout *makeChoices();
    void store(int seconds);

    QButtonGroup *choiceGroup;
};
