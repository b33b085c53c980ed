// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDeadlineTimer>
#include <QList>
#include <QObject>
#include <QPair>
#include <QPointer>
#include <QStringList>
#include <QVariantMap>

#include <memory>

class CardController;
class CardPluginsCollection;
class CardsManager;
class DataProxy;
class WarningWindow;
struct CardInfo;

/// One inserted measurement card, for as long as it is there. GUI thread only.
///
/// It opens the card's controller, gives each of its operating modes a page of the launcher window, switches the mode
/// when a page is entered, and tells the names and states of the card's LEDs. What the controller has to complain of is
/// shown in a window of the card's own. Commands wait for the card, two seconds at most.
class MeasCard : public QObject {
    Q_OBJECT

public:
    /// Identity and line addresses as the card service tells them. The manager becomes the parent. Throws
    /// std::bad_alloc when the controller cannot be made.
    MeasCard(const QString &name, int sn, const QString &cardiface, const QString &poller,
             CardsManager *manager);
    ~MeasCard() override;

    QString name() const { return cardName; }
    int serial() const { return sn; }
    /// As it was announced.
    CardInfo info() const;
    QString uniqueName() const;
    QList<CardPluginsCollection *> collections() const { return cardCollections; }

    /// Switches the card to the mode that the collection `mode` stands for. False when the card does not do it.
    bool changeMode(const QString &mode);
    /// Forgets the card's alarm history; the new states arrive as an update.
    void resetLeds();
    QStringList readLedsNames();
    QList<QPair<QString, QString>> ledsStates(const QVariantMap &data) const;
    /// Tells the LEDs' names and states again.
    void promptRedrawLeds();

    void initPlugins();
    void initPlugins(const QString &type);
    void deinitPlugins();

    /// The window for the card's errors. What is unread when the card goes is shown in the manager's.
    WarningWindow *warning();

signals:
    void setupLeds(QStringList names);
    void updateLeds(QList<QPair<QString, QString>> &data);

protected slots:
    void redrawLeds(QVariantMap &data);

private:
    void readIdentification();
    bool freeCollections();
    void setUpLeds();

    QList<CardPluginsCollection *> cardCollections;
    std::unique_ptr<CardController> controller;
    DataProxy *indicators = nullptr;
    CardsManager *cardsManager;
    QString cardName;
    int sn;
    QString cardiface;
    QString poller;
    bool isDualMode = false;
    QString currentMode;
    QStringList ledKeys;
    bool namesAreKnown = false;
    QDeadlineTimer nextSetup{0};
    QString options;
    QString versions;
    QString hardwareRevision;
    QPointer<WarningWindow> warningWindow;
};
