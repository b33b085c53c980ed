// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plugins/pluginscollection.h"

class MeasCard;

/// The plug-ins of one card type, bound to the card of that type that is inserted. GUI thread only.
///
/// Entering its page switches the card to the mode of the collection's name; while the page is shown the card's LEDs
/// are. A persistent collection stays without a card and waits for the next one.
class CardPluginsCollection : public PluginsCollection {
    Q_OBJECT

public:
    /// `card` may be null; it belongs to somebody else.
    CardPluginsCollection(const QString &name, MeasCard *card, bool persistent, QObject *parent = nullptr);

    /// The card that is bound, or null.
    MeasCard *measCard() const { return card; }
    /// Binds the card and shows its LEDs at once. Those of a card that was bound before are shown no longer.
    void setMeasCard(MeasCard *card);
    /// Forgets the card. What is connected ends with the card itself.
    void freeMeasCard();

    bool enter() override;
    void connectLeds() override;
    void disconnectLeds() override;
    void resetLeds() override;

private:
    MeasCard *card;
};
