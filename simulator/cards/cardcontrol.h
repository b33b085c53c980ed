// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLocalServer>
#include <QString>
#include <QStringList>

class CardProcess;

/// Takes orders for a card from a shell: one line of words each, answered with the text to print. An answer that begins with
/// "error " says why the order was not carried out.
class CardControl : public QObject {
    Q_OBJECT

public:
    CardControl(CardProcess *process, const QString &socketPath);

    bool listen();

    /// Sends an order to the card's process and returns its answer. Nothing when there is no such card.
    static std::optional<QString> order(const QString &card, const QStringList &words);

private:
    void answer();
    QString carryOut(const QStringList &words);
    QString setAlarm(const QString &name, const QString &state);
    QString setMode(const QString &mode);

    CardProcess *cardProcess;
    QString path;
    QLocalServer server;
};
