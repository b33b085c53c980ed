// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What the instrument is told of flash drives on the session bus (docs/protocols.md, "Flash service").
namespace FlashAnnouncement {

void inserted(const QString &partition);
void removed(const QString &partition);
/// `exitCode` is that of mount(8).
void mountFailed(int exitCode);

} // namespace FlashAnnouncement
