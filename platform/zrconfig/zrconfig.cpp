// SPDX-License-Identifier: GPL-3.0-or-later
#include "zrconfig.h"

#include "configfile.h"
#include "storewriter.h"

#include <QSettings>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The user's file, sound or put right: a damaged one has to be out of the way before QSettings reads it.
QString soundStoreFile(const QString &application) {
    QString file = userStoreFile(application);
    setDamagedStoreAside(file);
    tellDamagedSystemStore(systemStoreFile(application));
    return file;
}

} // namespace

QString ZrConfig::textOf(const QVariant &value) {
    return value.typeId() == QMetaType::QStringList ? value.toStringList().join(u',') : value.toString();
}

ZrConfig::ZrConfig(const QString &application, const QString &group)
    : ZrConfig(application, group, QString()) {}

ZrConfig::ZrConfig(const QString &application, const QString &group, const QString &key)
    : applicationName(application), groupName(group), keyName(key) {}

ZrConfig::~ZrConfig() = default;

ZrConfig ZrConfig::operator[](const QString &key) const {
    return {applicationName, groupName, key};
}

ZrConfig &ZrConfig::operator=(const QVariant &value) {
    const QString file = soundStoreFile(applicationName);
    const QString key = groupName + u'/' + keyName;
    if (!storeValue(file, key, textOf(value)))
        std::fprintf(stderr, "The configuration value %s cannot be stored in %s.\n", qPrintable(key),
                     qPrintable(file));
    return *this;
}

QString ZrConfig::string() const {
    soundStoreFile(applicationName);
    const QSettings store(u"talvenor"_s, applicationName);
    return textOf(store.value(groupName + u'/' + keyName));
}
