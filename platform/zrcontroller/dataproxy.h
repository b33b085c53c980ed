// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <QVariantMap>

class MeasProcessor;

/// The latest data of one named stream of a card. Belongs to the card's controller. GUI thread only.
class DataProxy : public QObject {
    Q_OBJECT

public:
    QString name() const { return streamName; }
    /// Empty until the card has sent the stream for the first time. While the line to the card is down every value is
    /// an empty text: what was true then need not be true now.
    QVariantMap data() const { return currentData; }

signals:
    /// New data, from the event loop and at most fifty times a second; of updates that follow each other faster the
    /// last one is told.
    void updated(QVariantMap &data, QString name);

private:
    friend class CardController;

    DataProxy(const QString &name, MeasProcessor *processor, QObject *controller);

    void take(QVariantMap data);
    void doubt();
    void forget();
    void tellSoon();
    void tell();

    QString streamName;
    MeasProcessor *processor;
    QVariantMap currentData;
    QTimer telling;
    QElapsedTimer sinceTold;
};
