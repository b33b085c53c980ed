// SPDX-License-Identifier: GPL-3.0-or-later
#include "flash/flashspy.h"

#include "businbox.h"
#include "hostpath.h"
#include "sessionbus.h"
#include "zrlauncherconfig.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QFile>
#include <QRegularExpression>

#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto inserted = "inserted"_L1;
constexpr auto removed = "removed"_L1;
constexpr auto mountFailure = "mountFailed"_L1;

/// By bit number of the exit code (mount(8), "EXIT STATUS"); a null ends the table.
const char *const mountErrNames[] = {
    QT_TRANSLATE_NOOP("FlashManager", "incorrect invocation or permissions"),
    QT_TRANSLATE_NOOP("FlashManager", "system error (out of memory, cannot fork, no more loop devices)"),
    QT_TRANSLATE_NOOP("FlashManager", "internal mount bug"),
    QT_TRANSLATE_NOOP("FlashManager", "user interrupt"),
    QT_TRANSLATE_NOOP("FlashManager", "problems writing or locking /etc/mtab"),
    QT_TRANSLATE_NOOP("FlashManager", "mount failure"),
    QT_TRANSLATE_NOOP("FlashManager", "some mount succeeded"),
    nullptr,
};

} // namespace

FlashSpy::FlashSpy(QObject *parent)
    : QObject(parent),
      inbox(new BusInbox(u"zr.flash"_s, {{inserted, u"s"_s}, {removed, u"s"_s}, {mountFailure, u"i"_s}},
                         this)) {
    connect(inbox, SIGNAL(announced(QDBusMessage)), this, SLOT(hear(QDBusMessage)));
    connect(inbox, SIGNAL(overflowed()), inbox, SLOT(tellNewest()));
    clearConfig();
    subscribe();
}

QString FlashSpy::flashDir() const {
    return flashDirectory;
}

QString FlashSpy::flashName() const {
    return flashDirectory;
}

void FlashSpy::subscribe() {
    connect(SessionBus::instance(), SIGNAL(isBack()), this, SLOT(catchUp()));
    if (!SessionBus::instance()->connection().isConnected()) {
        std::cerr << "No connection to the D-Bus session bus.\n";
        return;
    }
    inbox->listen();
}

void FlashSpy::hear(const QDBusMessage &message) {
    const QVariant value = message.arguments().constFirst();
    if (message.member() == inserted)
        addFlash(value.toString());
    else if (message.member() == removed)
        removeFlash(value.toString());
    else
        brokeFlash(value.toInt());
}

void FlashSpy::catchUp() {
    inbox->listen();
    isToBeConfirmed = !deviceName.isEmpty();
    // Who unmounts a drive takes its directory away.
    if (isToBeConfirmed && !QFile::exists(hostPath(flashDirectory)))
        removeFlash(deviceName);
}

void FlashSpy::clearConfig() {
    ZrLauncherConfig directory(u"flash"_s, u"dir"_s);
    ZrLauncherConfig save(u"flash"_s, u"save"_s);
    // Only the launcher writes these, and what it wrote is on the disk: a start need not wait for the disk again.
    if (directory.string().isEmpty() && save.string() == "false"_L1)
        return;
    directory = QString();
    save = false;
}

bool FlashSpy::isValidPartition(const QString &name) {
    static const QRegularExpression partition(u"\\A(?:^(.+)[0-9]{1,1}$)\\z"_s,
                                              QRegularExpression::InvertedGreedinessOption |
                                                  QRegularExpression::DotMatchesEverythingOption);
    return partition.match(name).hasMatch();
}

void FlashSpy::addFlash(const QString &devName) {
    if (isToBeConfirmed && isValidPartition(devName)) {
        isToBeConfirmed = false;
        if (devName == deviceName)
            return;
        removeFlash(deviceName);
    }
    if (!deviceName.isEmpty()) {
        emit mountFailed(tr("Only one flash card can be used. Please, remove currently installed"));
        return;
    }
    if (!isValidPartition(devName))
        return;
    deviceName = devName;
    flashDirectory = u"/media/%1"_s.arg(devName);
    ZrLauncherConfig(u"flash"_s, u"dir"_s) = flashDirectory;
    emit flashInserted(deviceName);
}

void FlashSpy::removeFlash(const QString &) {
    clearConfig();
    isToBeConfirmed = false;
    deviceName.clear();
    flashDirectory.clear();
    emit flashRemoved();
}

void FlashSpy::brokeFlash(int errCode) {
    emit mountFailed(tr("Error %1:").arg(errCode) + u"\n%2"_s.arg(decodeMountError(errCode)));
}

QString FlashSpy::decodeMountError(int code) {
    QString text;
    for (int bit = 0; mountErrNames[bit]; ++bit) {
        if (code & (1 << bit))
            text += translateMountErr(bit) + u'\n';
    }
    return text;
}

QString FlashSpy::translateMountErr(int bit) {
    return QCoreApplication::translate("FlashManager", mountErrNames[bit]);
}
