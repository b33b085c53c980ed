// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

/// The least library with something to show: its root object is the button itself.
class BarePlugin : public QPushButton {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zr.benchmarks.BarePlugin")

public:
    BarePlugin();
};
