// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/cardannouncement.h"

#include "bussignal.h"
#include "cards/cardplace.h"

#include <QFile>
#include <QSaveFile>

using namespace Qt::Literals::StringLiterals;

CardAnnouncement::CardAnnouncement(const QString &type, int serial, const QString &commandAddress,
                                   const QString &updateAddress)
    : cardType(type), serialNumber(serial), cardiface(commandAddress), poller(updateAddress) {}

QString CardAnnouncement::insert() const {
    QSaveFile file(CardPlace::infoFile(u"%1-%2"_s.arg(cardType).arg(serialNumber)));
    const QString text = u"%1\n%2\n%3\n%4\n"_s.arg(cardType).arg(serialNumber).arg(cardiface, poller);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toLatin1()) < 0 || !file.commit())
        return u"cannot write %1: %2"_s.arg(file.fileName(), file.errorString());
    return sendBusSignal(u"zr.card"_s, u"inserted"_s, {cardType, serialNumber, cardiface, poller});
}

QString CardAnnouncement::remove() const {
    QString error = sendBusSignal(u"zr.card"_s, u"removed"_s, {cardType, serialNumber});
    QFile::remove(CardPlace::infoFile(u"%1-%2"_s.arg(cardType).arg(serialNumber)));
    return error;
}
