// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cardpages.h"
#include "launcherprocess.h"
#include "scenario.h"
#include "standinprograms.h"
#include "testconfig.h"
#include "xserver.h"

#include <functional>

/// The installed launcher on a virtual display with the simulator's cards, drives and battery, and somebody who uses it.
class Instrument {
public:
    Instrument();
    ~Instrument();

    /// What went wrong, or nothing.
    QString switchOn();
    /// Does it and waits until the launcher shows what comes of it. What is not as it has to be, or nothing.
    QString perform(const Action &action);
    /// What is not as it has to be after an action, or nothing.
    QString differenceFrom(int reports);
    LauncherProcess &launcher() { return process; }

private:
    void configure();
    bool carryOut(const Action &action);

    // Each of these leaves in `failure` what went wrong when it is false.
    bool simulate(const QStringList &words);
    bool press(const QString &nameOrText);
    bool pressRow(int row);
    bool pressKey(const QString &key);
    bool comes(const QString &what, const std::function<bool()> &condition);
    bool messageComes(const QString &part);
    bool messageGoes();
    bool popupComes();
    bool popupGoes();
    /// Whether there are the pages that have to be, the right one is shown, and its lamps are as they should be.
    bool pagesAreShown();
    bool alarm(const QString &card, const QString &name, bool isPresent);
    bool forgetAlarms();
    bool showPage(int index);
    bool openWindow(const QString &icon);
    bool openSettings();
    bool openReports();
    bool openPopup(const QString &opener);
    bool changeColours();
    bool chargeIsShown();
    /// The launcher looks every two seconds only; so each charge is waited for before the next one is set.
    bool setCharge(const QStringList &words);
    bool useKey(const QString &key);
    bool goHome();
    bool changeBrightness();
    bool toggleInformation();
    /// A key that the windows hear of only when it is let go.
    bool letGo(const QString &key, Qt::Key number);
    bool askForPower();
    /// Waits for the question as well.
    bool insertDrive(const QString &partition);
    bool removeDrive();
    bool exportTo(const QString &partition);
    /// While the question is open.
    bool pullAskedDrive(const QString &partition);
    /// In the middle of a copy.
    bool pullDrive(const QString &partition);
    bool readMessage();
    bool saveReport();
    bool readReport(int row);
    bool deleteReport();
    int countReports() const;

    TestConfig config;
    StandInPrograms programs;
    XServer display;
    LauncherProcess process;
    CardPages pages;
    /// Percentage and state; empty before the first.
    QStringList charge;
    bool isNight = false;
    bool isBright = false;
    QString failure;
    /// After an export, the next drive that is pulled in the face of the question is told of.
    bool removalIsTold = false;
};
