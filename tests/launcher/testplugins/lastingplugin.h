// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <genericplugin.h>

#include <QProcess>

/// Has a child process and, if the library was built so, a modal dialog that nothing closes. Tells on standard
/// error the number of the process and "dialog is open".
class LastingPlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    LastingPlugin();

private:
    QProcess child;
};
