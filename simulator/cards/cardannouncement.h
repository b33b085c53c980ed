// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Tells the instrument of a card as the card service does: an info file, written whole, then a signal on the session bus;
/// the other way round when the card goes.
class CardAnnouncement {
public:
    CardAnnouncement(const QString &type, int serial, const QString &commandAddress,
                     const QString &updateAddress);

    /// What went wrong, or an empty text.
    QString insert() const;
    QString remove() const;

private:
    QString cardType;
    int serialNumber;
    QString cardiface;
    QString poller;
};
