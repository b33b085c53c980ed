// SPDX-License-Identifier: GPL-3.0-or-later
#include "startstate.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 largestStateBytes = 4 * 1024 * 1024;

QJsonObject objectOf(const Crash &crash) {
    return {{u"moment"_s, qint64(crash.moment.count())},
            {u"library"_s, crash.library},
            {u"trace"_s, crash.trace}};
}

QJsonObject objectOf(const LeftOutPlugin &plugin) {
    return {{u"library"_s, plugin.library}, {u"crashes"_s, plugin.crashes}, {u"trace"_s, plugin.trace}};
}

template <typename Value>
QJsonArray arrayOf(const QList<Value> &values) {
    QJsonArray array;
    for (const Value &value : values)
        array.append(objectOf(value));
    return array;
}

std::optional<Crash> crashFrom(const QJsonObject &object) {
    if (!object[u"moment"_s].isDouble() || !object[u"library"_s].isString() || !object[u"trace"_s].isString())
        return std::nullopt;
    return Crash{std::chrono::milliseconds(object[u"moment"_s].toInteger()), object[u"library"_s].toString(),
                 object[u"trace"_s].toString()};
}

std::optional<LeftOutPlugin> leftOutFrom(const QJsonObject &object) {
    if (!object[u"library"_s].isString() || !object[u"crashes"_s].isDouble() ||
        !object[u"trace"_s].isString())
        return std::nullopt;
    return LeftOutPlugin{object[u"library"_s].toString(), object[u"crashes"_s].toInteger(),
                         object[u"trace"_s].toString()};
}

/// False when one of the values is not what it should be.
template <typename Value, typename Parse>
bool appendAll(QList<Value> &values, const QJsonValue &array, Parse parse) {
    if (!array.isArray())
        return false;
    for (const QJsonValue entry : array.toArray()) {
        const std::optional<Value> value = parse(entry.toObject());
        if (!value)
            return false;
        values.append(*value);
    }
    return true;
}

} // namespace

QByteArray toBytes(const StartState &state) {
    return QJsonDocument(QJsonObject{{u"crashes"_s, arrayOf(state.crashes)},
                                     {u"leftOut"_s, arrayOf(state.leftOut)},
                                     {u"failedRuns"_s, state.failedRuns}})
        .toJson();
}

std::optional<StartState> stateFrom(const QByteArray &bytes) {
    const QJsonObject object = QJsonDocument::fromJson(bytes).object();
    StartState state{{}, {}, object[u"failedRuns"_s].toInteger(-1)};
    if (state.failedRuns < 0 || !appendAll(state.crashes, object[u"crashes"_s], crashFrom) ||
        !appendAll(state.leftOut, object[u"leftOut"_s], leftOutFrom))
        return std::nullopt;
    return state;
}

StartState readState(const QString &name) {
    QFile file(name);
    if (!file.exists())
        return {};
    std::optional<StartState> state;
    if (file.open(QIODevice::ReadOnly))
        state = stateFrom(file.read(largestStateBytes));
    if (!state)
        std::fprintf(stderr, "What was remembered of failed runs (%s) is damaged; it is ignored.\n",
                     qPrintable(name));
    return state.value_or(StartState());
}

void writeState(const QString &name, const StartState &state) {
    QSaveFile file(name);
    const QByteArray bytes = toBytes(state);
    // commit() does not tell what fails on the way out of the buffer.
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() ||
        !file.commit())
        std::fprintf(stderr, "A failed run cannot be remembered in %s: %s\n", qPrintable(name),
                     qPrintable(file.errorString()));
}
