// SPDX-License-Identifier: GPL-3.0-or-later
#include "controllercommand.h"

ControllerCommand::ControllerCommand(const QString &text, bool isQuiet) : commandText(text), quiet(isQuiet) {}
