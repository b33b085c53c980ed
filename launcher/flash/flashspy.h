// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class BusInbox;
class QDBusMessage;

/// Follows the one flash drive that the instrument uses, as the mount service tells of it on the session bus, and tells
/// the plug-ins in the launcher's store where it is mounted. GUI thread only.
class FlashSpy : public QObject {
    Q_OBJECT

public:
    explicit FlashSpy(QObject *parent);

    /// Where the accepted partition is mounted, empty when there is none.
    QString flashDir() const;
    /// The same as flashDir().
    QString flashName() const;

signals:
    /// `name` is the partition's, "sda1".
    void flashInserted(QString name);
    void flashRemoved();
    /// `msg` is for the user.
    void mountFailed(QString msg);

public slots:
    /// A partition was mounted. Whole drives are ignored, a second partition is refused.
    void addFlash(const QString &devName);
    /// A partition went. Whichever it was, there is no drive any more.
    void removeFlash(const QString &devName);
    /// mount(8) ended with that exit code, in which each bit has a meaning of its own.
    void brokeFlash(int errCode);

private slots:
    void hear(const QDBusMessage &message);
    /// After a time without a bus, in which the drive may have been pulled.
    void catchUp();

private:
    void subscribe();
    void clearConfig();
    static bool isValidPartition(const QString &name);
    static QString decodeMountError(int code);
    static QString translateMountErr(int bit);

    BusInbox *inbox;
    QString flashDirectory;
    QString deviceName;
    /// The mount service, which ends with the bus, announces a drive that stayed once more.
    bool isToBeConfirmed = false;
};
