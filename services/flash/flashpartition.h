// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusObjectPath>
#include <QMap>
#include <QString>
#include <QVariantMap>

#include <optional>

/// Properties of one object of UDisks2, by interface.
using UDisksInterfaces = QMap<QString, QVariantMap>;
/// All objects of UDisks2, as its object manager tells them.
using UDisksObjects = QMap<QDBusObjectPath, UDisksInterfaces>;

/// A partition that the instrument mounts.
struct FlashPartition {
    /// As the kernel names it: "sda1".
    QString name;
    QDBusObjectPath drive;
};

/// What is to be done about an object: mount it as `partition`, or say why a flash drive is refused, or nothing.
struct FlashVerdict {
    std::optional<FlashPartition> partition;
    QString refusal = {};
};

FlashVerdict flashVerdict(const UDisksObjects &objects, const QDBusObjectPath &path);

/// Name of the partition that has this device file, a text that may end in a NUL. Nothing unless the file lies right below
/// /dev and its name is plain: letters, digits, hyphens and underscores, a digit at the end.
std::optional<QString> partitionName(const QByteArray &device);
