// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <abstractkeeper.h>

#include <memory>

class SystemReader;

/// Saves the machine's state as a text report. There is nothing to load.
class SystemKeeper : public AbstractKeeper {
    Q_OBJECT

public:
    explicit SystemKeeper(std::shared_ptr<SystemReader> reader, QObject *parent = nullptr);

    bool canBeLoaded() override;
    bool canBeSaved() override;
    void save() override;
    void load() override;

signals:
    /// One line for the user on how saving went.
    void saved(QString message);
    void failed(QString message);

private:
    std::shared_ptr<SystemReader> systemReader;
};
