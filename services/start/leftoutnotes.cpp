// SPDX-License-Identifier: GPL-3.0-or-later
#include "leftoutnotes.h"

#include <zrconfig.h>

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QSettings>

#include <algorithm>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

QList<Replacement> replacements(const QList<ListedPlugin> &plugins, const QList<LeftOutPlugin> &leftOut,
                                int noticeCount) {
    QList<Replacement> replaced;
    for (const LeftOutPlugin &known : leftOut) {
        for (const ListedPlugin &plugin : plugins) {
            if (plugin.library != known.library)
                continue;
            const int number = static_cast<int>(replaced.size()) + 1;
            replaced.append({number <= noticeCount ? number : 0, plugin, known.crashes, known.trace});
        }
    }
    return replaced;
}

StoreDifference differenceFor(const QList<Replacement> &replaced, const QSettings &store,
                              const QString &noticeDirectory) {
    StoreDifference difference;
    for (const Replacement &replacement : replaced) {
        const QString &group = replacement.plugin.group;
        const QString notice = noticeGroup(group) + u'/';
        const QString list = "plugins/"_L1 + replacement.plugin.collection;
        const QVariant before = difference.values.value(list, store.value(list));
        difference.leftOut.append(group);
        difference.values[list] = withNotices(ZrConfig::textOf(before), {group});
        difference.values[notice + "ver"_L1] = 2;
        difference.values[notice + "name"_L1] =
            u"%1libnotice%2.so"_s.arg(noticeDirectory).arg(replacement.notice);
        for (const QString &key : {u"row"_s, u"col"_s}) {
            if (const QVariant cell = store.value(group + u'/' + key); cell.isValid())
                difference.values[notice + key] = cell;
        }
    }
    return difference;
}

void writeNotes(const QString &directory, const QList<Replacement> &replaced) {
    QDir(directory).removeRecursively();
    QDir().mkpath(directory);
    for (const Replacement &replacement : replaced) {
        const QJsonObject note{{u"plugin"_s, replacement.plugin.group},
                               {u"library"_s, replacement.plugin.library},
                               {u"crashes"_s, replacement.crashes},
                               {u"trace"_s, replacement.trace}};
        QSaveFile file(u"%1/%2.json"_s.arg(directory).arg(replacement.notice));
        const QByteArray bytes = QJsonDocument(note).toJson();
        // commit() does not tell what fails on the way out of the buffer.
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() ||
            !file.commit())
            std::fprintf(stderr, "The notice %s cannot be written: %s\n", qPrintable(file.fileName()),
                         qPrintable(file.errorString()));
    }
}
