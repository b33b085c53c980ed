// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Where a kernel or system file with the fixed name `path` is to be opened.
///
/// On the instrument that is the name itself. With the environment variable `ZR_SYSROOT` set, its value is put
/// in front, so that a desk can stand in for the instrument's hardware. Any thread.
QString hostPath(const QString &path);
