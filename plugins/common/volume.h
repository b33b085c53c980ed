// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

/// How full a file system is, in bytes. What is free to us may be less than what is not used: the system keeps
/// a reserve for itself.
struct Volume {
    quint64 total = 0;
    quint64 used = 0;
    quint64 available = 0;
    /// The same for every path of one file system.
    quint64 device = 0;

    bool operator==(const Volume &) const = default;
};

/// The file system on which `path` lies; nothing when the path is not there.
std::optional<Volume> volumeOf(const QString &path);
