// SPDX-License-Identifier: GPL-3.0-or-later
#include "controllerlog.h"

Q_LOGGING_CATEGORY(controllerLog, "zr.controller", QtWarningMsg)
