// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMap>
#include <QObject>
#include <QString>
#include <QThread>
#include <QTimer>

#include <memory>

class BusReceiver;
class QDBusMessage;

/// Hears the signals of one interface, sent by anybody on the session bus from the path "/".
///
/// They are received beside the screen and told one by one, so that keys and touches have their turn between two of them. A
/// sender who floods the bus costs neither memory nor the screen: while it lasts nothing is told one by one, but once a
/// second that there was too much. GUI thread only.
class BusInbox : public QObject {
    Q_OBJECT

public:
    /// `signatures` by name of the signal; what has another one is not heard.
    BusInbox(QString interface, QMap<QString, QString> signatures, QObject *parent);
    ~BusInbox() override;

    /// Begins to listen on the session bus, and has to be called again when there is a new one.
    void listen();

public slots:
    /// After a flood, for those who have no better source: the newest signal of each name is told.
    void tellNewest();

signals:
    void announced(const QDBusMessage &message);
    /// What was announced in the last second is not told.
    void overflowed();

private slots:
    void deliver();
    void beginFlood();
    void lookAtFlood();

private:
    const QString interfaceName;
    const QMap<QString, QString> signatureByName;
    QThread thread;
    std::unique_ptr<BusReceiver> receiver;
    QTimer turn;
    QTimer floodsEnd;
    qsizetype floodsSize = 0;
};
