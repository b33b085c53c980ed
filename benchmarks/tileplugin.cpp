// SPDX-License-Identifier: GPL-3.0-or-later
#include "tileplugin.h"

#include <icontile.h>

TilePlugin::TilePlugin() : icon(own(new IconTile(QIcon(), QStringLiteral("Measurement")))) {}
