// SPDX-License-Identifier: GPL-3.0-or-later
#include "flashpartition.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto block = "org.freedesktop.UDisks2.Block"_L1;
constexpr auto drive = "org.freedesktop.UDisks2.Drive"_L1;
constexpr auto filesystem = "org.freedesktop.UDisks2.Filesystem"_L1;
constexpr auto partition = "org.freedesktop.UDisks2.Partition"_L1;

/// The property's value; the default of its type when it is missing or of another type.
template <typename Value>
Value property(const QVariantMap &properties, const QString &name) {
    const QVariant value = properties.value(name);
    return value.metaType() == QMetaType::fromType<Value>() ? value.value<Value>() : Value();
}

bool isFlashDrive(const QVariantMap &properties) {
    const QString bus = property<QString>(properties, u"ConnectionBus"_s);
    // Boards boot from the card in the SD slot, and the kernel does not call it removable either.
    return bus == "usb"_L1 || (property<bool>(properties, u"Removable"_s) && bus != "sdio"_L1);
}

QByteArray untilNul(const QByteArray &text) {
    return text.split('\0').constFirst();
}

} // namespace

FlashVerdict flashVerdict(const UDisksObjects &objects, const QDBusObjectPath &path) {
    const UDisksInterfaces interfaces = objects.value(path);
    if (!interfaces.contains(block) || !interfaces.contains(filesystem))
        return {};
    const QVariantMap properties = interfaces.value(block);
    const auto drivePath = property<QDBusObjectPath>(properties, u"Drive"_s);
    // A system device is told by a true; one that does not say is taken for a system device as well.
    const QVariant isSystem = properties.value(u"HintSystem"_s);
    if (isSystem.metaType() != QMetaType::fromType<bool>() || isSystem.toBool() ||
        !isFlashDrive(objects.value(drivePath).value(drive)))
        return {};

    const QByteArray device = untilNul(property<QByteArray>(properties, u"Device"_s));
    const QString quotedDevice = QString::fromLatin1(device.toPercentEncoding("/"));
    if (!interfaces.contains(partition))
        return {{}, u"%1 has a file system and no partitions; it is not mounted"_s.arg(quotedDevice)};
    const std::optional<QString> name = partitionName(device);
    if (!name)
        return {{}, u"\"%1\" is no name of a partition; it is not mounted"_s.arg(quotedDevice)};
    return {FlashPartition{*name, drivePath}};
}

std::optional<QString> partitionName(const QByteArray &device) {
    // The kernel's names take 32 bytes with the closing NUL.
    static const QRegularExpression plainName(u"^/dev/([A-Za-z0-9_-]{1,30}[0-9])\\z"_s);
    const QRegularExpressionMatch match = plainName.match(QString::fromLatin1(untilNul(device)));
    if (!match.hasMatch())
        return std::nullopt;
    return match.captured(1);
}
