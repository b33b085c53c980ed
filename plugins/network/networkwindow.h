// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <pluginwindow.h>

#include <memory>

class DataTable;
class InterfacesModel;
class NetworkReader;
class VisibleTimer;

/// The window of the Network plug-in: every interface of the machine. Lives only while it can be seen.
class NetworkWindow : public PluginWindow {
    Q_OBJECT

public:
    explicit NetworkWindow(std::unique_ptr<NetworkReader> reader, QWidget *parent = nullptr);
    ~NetworkWindow() override;

private:
    void refresh();

    std::unique_ptr<NetworkReader> networkReader;
    InterfacesModel *model;
    DataTable *table;
    VisibleTimer *refreshTimer;
};
