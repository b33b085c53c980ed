// SPDX-License-Identifier: GPL-3.0-or-later
#include "hostpath.h"

QString hostPath(const QString &path) {
    return qEnvironmentVariable("ZR_SYSROOT") + path;
}
