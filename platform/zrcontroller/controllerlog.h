// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLoggingCategory>

/// "zr.controller": what goes wrong on the lines to the cards. Warnings are on, the rest is off unless asked for.
Q_DECLARE_LOGGING_CATEGORY(controllerLog)
