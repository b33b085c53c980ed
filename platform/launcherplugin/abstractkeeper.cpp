// SPDX-License-Identifier: GPL-3.0-or-later
#include "abstractkeeper.h"

AbstractKeeper::AbstractKeeper(QObject *parent) : QObject(parent) {}

AbstractKeeper::~AbstractKeeper() = default;
