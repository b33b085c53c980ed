// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <functional>

/// What `print` has written to the standard output, byte for byte, when it returns. Text that still waits in a
/// buffer does not count.
QByteArray printedBy(const std::function<void()> &print);
