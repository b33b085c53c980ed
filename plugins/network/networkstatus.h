// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <statuslabel.h>

/// The address by which the machine is reached, for the information panel.
class NetworkStatus : public StatusLabel {
    Q_OBJECT

public:
    /// `directory` is usually /sys/class/net.
    explicit NetworkStatus(const QString &directory, QWidget *parent = nullptr);

private:
    void refresh();

    QString netDirectory;
};
