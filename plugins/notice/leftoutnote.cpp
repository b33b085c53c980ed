// SPDX-License-Identifier: GPL-3.0-or-later
#include "leftoutnote.h"

#include <boundedread.h>

#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 largestNoteBytes = 1024 * 1024;

} // namespace

LeftOutNote LeftOutNote::read(int number) {
    const QString file =
        u"%1/zr-launcher/left-out/%2.json"_s.arg(qEnvironmentVariable("XDG_RUNTIME_DIR")).arg(number);
    return from(boundedRead(file, largestNoteBytes));
}

LeftOutNote LeftOutNote::from(const QByteArray &bytes) {
    const QJsonObject object = QJsonDocument::fromJson(bytes).object();
    LeftOutNote note;
    note.pluginName = object[u"plugin"_s].toString();
    note.library = object[u"library"_s].toString();
    note.crashes = object[u"crashes"_s].toInt();
    note.traceText = object[u"trace"_s].toString();
    return note;
}

QString LeftOutNote::headline() const {
    return pluginName.isEmpty() ? tr("A plug-in was left out") : tr("Left out: %1").arg(pluginName);
}

QString LeftOutNote::reason() const {
    if (pluginName.isEmpty())
        return tr("Nothing more is known about it.");
    return tr("The program crashed in %1, %2 times within a minute. It is tried again the next time the "
              "instrument is switched on.")
        .arg(library.section(u'/', -1))
        .arg(crashes);
}

QString LeftOutNote::report() const {
    return u"%1\n%2\n%3\n\n%4\n"_s.arg(headline(), reason(), library, traceText);
}
