// SPDX-License-Identifier: GPL-3.0-or-later
#include "bareplugin.h"

BarePlugin::BarePlugin() {
    setText(QStringLiteral("Measurement"));
}
