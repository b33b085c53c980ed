// SPDX-License-Identifier: GPL-3.0-or-later
#include "qtargexceptions.h"

QtArgBaseException::QtArgBaseException(const QString &message)
    : messageText(message), messageBytes(message.toLocal8Bit()) {}

QtArgBaseException::~QtArgBaseException() = default;

QtHelpHasPrintedEx::QtHelpHasPrintedEx() : QtArgBaseException(QString()) {}

QtVersionHasPrintedEx::QtVersionHasPrintedEx() : QtArgBaseException(QString()) {}
