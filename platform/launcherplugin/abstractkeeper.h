// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

/// A plug-in's agent for saving and loading its settings or reports.
///
/// The launcher enables its Save and Load buttons from `canBeSaved()` and `canBeLoaded()` when the plug-in's
/// window is brought up, follows the two signals while that window is the current one, and calls `save()` or
/// `load()` when the user presses a button. Everything happens on the GUI thread; what goes wrong is the
/// plug-in's to tell.
///
/// Plug-ins are built apart from the launcher: the order of the virtual operations is part of the contract.
class AbstractKeeper : public QObject {
    Q_OBJECT

public:
    explicit AbstractKeeper(QObject *parent = nullptr);
    ~AbstractKeeper() override;

    virtual bool canBeLoaded() = 0;
    virtual bool canBeSaved() = 0;

    virtual void save() = 0;
    virtual void load() = 0;

signals:
    void canbeSaved(bool possible);
    void canbeLoaded(bool possible);
};
