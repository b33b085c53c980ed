// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/cardplace.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString controlSuffix = u".control"_s;

QString placeOf(const QString &card, const QString &suffix) {
    return CardPlace::directory() + u'/' + card + suffix;
}

} // namespace

QString CardPlace::directory() {
    const QString root = qEnvironmentVariable("ZR_SYSROOT");
    const QString user = qEnvironmentVariable("USER");
    if (user.isEmpty())
        return QDir::currentPath();
    QString run = root + "/var/run/"_L1 + user;
    if (QFileInfo(run).isDir())
        return run;
    QString temporary = root + "/tmp/"_L1 + user;
    QDir().mkpath(temporary);
    return temporary;
}

QStringList CardPlace::cards() {
    QStringList names;
    for (const QString &name : QDir(directory()).entryList({u'*' + controlSuffix}, QDir::System, QDir::Name))
        names.append(name.chopped(controlSuffix.size()));
    return names;
}

QString CardPlace::infoFile(const QString &card) {
    return placeOf(card, u".info"_s);
}

QString CardPlace::controlSocket(const QString &card) {
    return placeOf(card, controlSuffix);
}

QString CardPlace::commandSocket(const QString &card) {
    return placeOf(card, u".commands"_s);
}

QString CardPlace::updateSocket(const QString &card) {
    return placeOf(card, u".updates"_s);
}
