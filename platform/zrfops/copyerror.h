// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What went wrong with a copy, in the user's language.
namespace CopyError {

/// Exit codes of rsync (rsync manual, "EXIT VALUES") that a copy also reports by itself.
enum Code { FileSelection = 3, FileAccess = 11, Interrupted = 20 };
/// Reported where rsync never ran.
enum OwnCode { NotStarted = -1, Busy = -2 };

/// A sentence that tells what the code means.
QString sentence(int code);
/// The sentence, with rsync's exit code where there is one, and what rsync said first.
QString description(int code, const QString &firstMessage);

} // namespace CopyError
