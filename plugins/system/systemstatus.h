// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <statuslabel.h>

#include <memory>

class SystemReader;

/// The machine's state in a few lines, for the information panel.
class SystemStatus : public StatusLabel {
    Q_OBJECT

public:
    explicit SystemStatus(std::shared_ptr<SystemReader> reader, QWidget *parent = nullptr);

private:
    void refresh();
    void setLine(int row, const QString &caption, const QString &text);

    std::shared_ptr<SystemReader> systemReader;
};
