// SPDX-License-Identifier: GPL-3.0-or-later
#include "flashannouncement.h"

#include <QDBusConnection>
#include <QDBusMessage>

using namespace Qt::Literals::StringLiterals;

namespace {

void announce(const QString &name, const QVariant &argument) {
    QDBusMessage message = QDBusMessage::createSignal(u"/"_s, u"zr.flash"_s, name);
    message.setArguments({argument});
    QDBusConnection::sessionBus().send(message);
}

} // namespace

void FlashAnnouncement::inserted(const QString &partition) {
    announce(u"inserted"_s, partition);
}

void FlashAnnouncement::removed(const QString &partition) {
    announce(u"removed"_s, partition);
}

void FlashAnnouncement::mountFailed(int exitCode) {
    announce(u"mountFailed"_s, exitCode);
}
