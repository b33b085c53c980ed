// SPDX-License-Identifier: GPL-3.0-or-later
#include "measprocessor.h"

MeasProcessor::~MeasProcessor() = default;
