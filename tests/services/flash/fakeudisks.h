// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "flashpartition.h"

#include <QDBusConnection>
#include <QObject>

/// Drives and partitions as UDisks2 tells of them, for tests of whoever reads that.
namespace UDisks {

QDBusObjectPath drivePath(const QString &name);
QDBusObjectPath blockPath(const QString &name);
/// A USB drive, unless `properties` say something else.
UDisksInterfaces drive(const QVariantMap &properties = {});
/// A partition that holds a file system, without the interfaces named in `missing`.
UDisksInterfaces partition(const QByteArray &device, const QString &drive, const QStringList &missing = {});

} // namespace UDisks

/// Stands in for UDisks2 on a bus.
class FakeUDisks : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.DBus.ObjectManager")

public:
    explicit FakeUDisks(const QString &busAddress);
    ~FakeUDisks() override;

    /// Comes with these objects, and goes again.
    bool appear(const UDisksObjects &objects);
    void vanish();

    void add(const QDBusObjectPath &path, const UDisksInterfaces &interfaces);
    void remove(const QDBusObjectPath &path);
    /// A signal with arguments of any kind.
    void say(const QString &signal, const QVariantList &arguments);
    /// How often somebody has asked for the objects.
    int questions() const { return questionCount; }

public slots:
    UDisksObjects GetManagedObjects() {
        ++questionCount;
        return told;
    }

private:
    QString connectionName;
    QDBusConnection bus;
    UDisksObjects told;
    int questionCount = 0;
};
