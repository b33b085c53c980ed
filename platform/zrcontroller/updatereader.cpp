// SPDX-License-Identifier: GPL-3.0-or-later
#include "updatereader.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr qsizetype longestLine = 256 * 1024;

} // namespace

std::optional<CardUpdate> cardUpdate(QByteArrayView line) {
    QJsonParseError error;
    const QJsonDocument document =
        QJsonDocument::fromJson(QByteArray::fromRawData(line.data(), line.size()), &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        return std::nullopt;
    CardUpdate update;
    const QJsonObject streams = document.object();
    for (auto stream = streams.constBegin(); stream != streams.constEnd(); ++stream) {
        if (!stream.value().isObject())
            return std::nullopt;
        update.insert(stream.key(), stream.value().toObject().toVariantMap());
    }
    return update;
}

UpdateReader::Batch UpdateReader::feed(QByteArrayView bytes) {
    Batch batch;
    while (true) {
        const qsizetype lineFeed = bytes.indexOf('\n');
        if (lineFeed < 0)
            break;
        append(bytes.first(lineFeed));
        endLine(batch);
        bytes = bytes.sliced(lineFeed + 1);
    }
    append(bytes);
    return batch;
}

void UpdateReader::append(QByteArrayView bytes) {
    isTooLong |= line.size() + bytes.size() > longestLine;
    if (isTooLong)
        line.clear();
    else
        line.append(bytes);
}

void UpdateReader::endLine(Batch &batch) {
    const QByteArrayView text = QByteArrayView(line).trimmed();
    if (isTooLong) {
        ++batch.damagedLines;
    } else if (!text.isEmpty()) {
        if (const std::optional<CardUpdate> update = cardUpdate(text))
            batch.updates.append(*update);
        else
            ++batch.damagedLines;
    }
    line.clear();
    isTooLong = false;
}
