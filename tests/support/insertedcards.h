// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cards/cardsmanager.h"
#include "cards/meascard.h"
#include "fakecard.h"
#include "ui/launcherwindow.h"

#include <ledpanel.h>

#include <QTest>

/// Announces a card to the window's manager as the bus would.
inline void announce(const LauncherWindow &window, const QString &name, int sn, const QString &cardiface,
                     const QString &poller) {
    QMetaObject::invokeMethod(window.findChild<CardsManager *>(), "cardInserted", Q_ARG(QString, name),
                              Q_ARG(int, sn), Q_ARG(QString, cardiface), Q_ARG(QString, poller));
}

inline void insert(const LauncherWindow &window, const QString &name, int sn, const FakeCard &card) {
    announce(window, name, sn, card.cardiface(), card.poller());
}

inline void remove(const LauncherWindow &window, const QString &name, int sn) {
    QMetaObject::invokeMethod(window.findChild<CardsManager *>(), "cardRemoved", Q_ARG(QString, name),
                              Q_ARG(int, sn));
}

inline QList<MeasCard *> cardsOf(const LauncherWindow &window) {
    return window.findChildren<MeasCard *>();
}

inline LedPanel *ledPanelOf(const LauncherWindow &window) {
    return window.findChild<LedPanel *>();
}

/// Sends the states of the indicators until they are there; the card's end of the line takes a moment to open.
inline bool showStates(FakeCard &card, const QByteArray &indicators, const std::function<bool()> &arrived) {
    return QTest::qWaitFor([&] {
        card.sendUpdate("{\"indicators\":" + indicators + "}\n");
        return arrived();
    });
}
