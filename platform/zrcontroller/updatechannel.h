// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cardline.h"
#include "updatereader.h"

#include <QObject>
#include <QTimer>

#include <memory>

/// The line on which a card tells its states. It is opened without waiting, and opened again by itself, after half a
/// second at first and eight seconds in the end. GUI thread only.
class UpdateChannel : public QObject {
    Q_OBJECT

public:
    /// `address` as cardAddress() reads it; an empty one means that the card tells nothing.
    explicit UpdateChannel(const QString &address, QObject *parent = nullptr);
    ~UpdateChannel() override;

    void open();
    /// Asks the card for the states of all streams; it is asked by itself when the line has been opened.
    void request();
    /// Takes what has arrived, without waiting for the event loop to come round to it.
    void takeWaiting();
    /// Waits for one more update without running an event loop. False when none came in time.
    bool waitForUpdate(QDeadlineTimer deadline);

signals:
    void received(const QString &stream, const QVariantMap &data);
    /// The line was closed: what it told is no longer known to be true.
    void lost();

private:
    void read();
    void tellDamage(int lines);
    void reopenLater();

    QString addressText;
    std::unique_ptr<CardLine> line;
    UpdateReader reader;
    QTimer reopening;
    std::chrono::milliseconds reopenDelay;
    quint64 updatesSeen = 0;
    QDeadlineTimer damageToldUntil{0};
};
