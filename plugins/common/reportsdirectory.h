// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Where reports are kept: the directory below the user's home that the configuration names as "paths"/"main",
/// "reports" when it names none. It may not exist yet.
QString reportsDirectory();
