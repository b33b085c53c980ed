// SPDX-License-Identifier: GPL-3.0-or-later
#include "filetext.h"

#include <QStringConverter>
#include <QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype bytesInLine = 16;

bool isControl(char character) {
    constexpr QByteArrayView inTexts = "\t\n\r\f\x1b";
    const auto code = static_cast<unsigned char>(character);
    return code == 0x7f || (code < 0x20 && !inTexts.contains(character));
}

QString printable(const QByteArray &bytes) {
    QString text;
    for (const char character : bytes)
        text.append(character >= 0x20 && character < 0x7f ? QLatin1Char(character) : QLatin1Char('.'));
    return text;
}

QString hexLine(qsizetype offset, const QByteArray &bytes) {
    const QString digits = QString::fromLatin1(bytes.toHex(' ')).leftJustified(3 * bytesInLine - 1);
    return u"%1  %2  %3"_s.arg(offset, 8, 16, QLatin1Char('0')).arg(digits, printable(bytes));
}

} // namespace

std::optional<QString> textIn(const QByteArray &bytes) {
    if (std::any_of(bytes.cbegin(), bytes.cend(), isControl))
        return std::nullopt;
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    return decoder.hasError() ? QString::fromLatin1(bytes) : text;
}

QString hexDump(const QByteArray &bytes) {
    QStringList lines;
    for (qsizetype offset = 0; offset < bytes.size(); offset += bytesInLine)
        lines.append(hexLine(offset, bytes.mid(offset, bytesInLine)));
    return lines.join(u'\n');
}

QString withShortLines(const QString &text, qsizetype longest) {
    QString result;
    result.reserve(text.size() + text.size() / longest);
    qsizetype length = 0;
    for (const QChar character : text) {
        if (character == u'\n') {
            length = 0;
        } else if (length >= longest && !character.isLowSurrogate()) {
            result.append(u'\n');
            length = 1;
        } else {
            ++length;
        }
        result.append(character);
    }
    return result;
}
