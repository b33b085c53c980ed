// SPDX-License-Identifier: GPL-3.0-or-later
#include "helplayout.h"

#include "qtargiface.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString lineTemplate = u"%beforeFlags%%flagsString%%afterFlags%%beforeNames%%namesString%%afterNames%"
                             "%beforeDescription%%description%%newLine%"_s;
const QString separator = u", "_s;

struct Line {
    QString flags;
    QString names;
    QString description;
};

/// Columns counted from the start of a line.
struct Columns {
    qsizetype flags = 2;
    qsizetype flagsEnd = 0;
    qsizetype names = 0;
    qsizetype namesEnd = 0;
    qsizetype description = 0;
};

QString flagsOf(const QtArgIface &option, QChar delimiter) {
    QStringList flags;
    for (const QChar flag : option.flags())
        flags.append(QString(delimiter) + flag);
    return flags.join(separator);
}

QString namesOf(const QtArgIface &option, const QStringList &allNames, QChar delimiter) {
    QStringList names;
    for (const QString &name : option.names()) {
        QStringList others = allNames;
        others.removeOne(name);
        names.append(QString(2, delimiter) + abbreviated(name, others));
    }
    return names.join(separator);
}

Columns columnsFor(const QList<Line> &lines) {
    qsizetype widestFlags = 0;
    qsizetype widestNames = 0;
    for (const Line &line : lines) {
        widestFlags = qMax(widestFlags, line.flags.size());
        widestNames = qMax(widestNames, line.names.size());
    }
    Columns columns;
    columns.flagsEnd = columns.flags + widestFlags;
    columns.names = widestFlags + 4;
    columns.namesEnd = columns.names + widestNames;
    columns.description = columns.namesEnd + 3;
    return columns;
}

QString replacement(QStringView placeholder, const Line &line, const Columns &columns, qsizetype width) {
    const auto blanksUpTo = [width](qsizetype column) { return QString(qMax(column - width, 0), u' '); };
    if (placeholder == "beforeFlags"_L1)
        return blanksUpTo(columns.flags);
    if (placeholder == "flagsString"_L1)
        return line.flags;
    if (placeholder == "afterFlags"_L1)
        return blanksUpTo(columns.flagsEnd);
    if (placeholder == "beforeNames"_L1)
        return blanksUpTo(columns.names);
    if (placeholder == "namesString"_L1)
        return line.names;
    if (placeholder == "afterNames"_L1)
        return blanksUpTo(columns.namesEnd);
    if (placeholder == "beforeDescription"_L1)
        return blanksUpTo(columns.description);
    return placeholder == "description"_L1 ? line.description : u"\n"_s;
}

/// Only the template is searched for placeholders, never the texts that were put in.
QString filled(const Line &line, const Columns &columns) {
    static const QRegularExpression placeholder(u"%(\\w+)%"_s);
    QString text;
    auto match = placeholder.globalMatch(lineTemplate);
    while (match.hasNext())
        text += replacement(match.next().capturedView(1), line, columns, text.size());
    return text;
}

} // namespace

QString abbreviated(const QString &name, const QStringList &otherNames) {
    for (qsizetype length = 1; length < name.size(); ++length) {
        const QString start = name.first(length);
        const bool isTaken = std::any_of(otherNames.begin(), otherNames.end(),
                                         [&start](const QString &other) { return other.startsWith(start); });
        if (!isTaken)
            return start + u'[' + name.mid(length) + u']';
    }
    return name;
}

QString helpText(const QList<QtArgIface *> &options, QChar delimiter) {
    QStringList allNames;
    for (const QtArgIface *const option : options)
        allNames.append(option->names());
    QList<Line> lines;
    for (const QtArgIface *const option : options)
        lines.append(
            {flagsOf(*option, delimiter), namesOf(*option, allNames, delimiter), option->description()});

    const Columns columns = columnsFor(lines);
    QString text;
    for (const Line &line : lines)
        text += filled(line, columns);
    return text;
}
