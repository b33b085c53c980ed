// SPDX-License-Identifier: GPL-3.0-or-later
#include "systemreport.h"

#include "systemfacts.h"

#include <amounts.h>

#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int captionWidth = 20;

QString factLine(const Fact &fact) {
    const QString percent = fact.percent ? u" (%1%)"_s.arg(*fact.percent) : QString();
    return (fact.caption + u':').leftJustified(captionWidth) + fact.text + percent;
}

} // namespace

QString SystemReport::text(const QDateTime &moment, const SystemState &state,
                           const QList<MountedVolume> &storage) {
    QStringList lines{tr("System report"), QLocale().toString(moment, QLocale::LongFormat), QString()};
    for (const auto kind : {SystemFacts::Launcher, SystemFacts::Kernel, SystemFacts::Host,
                            SystemFacts::Processor, SystemFacts::Memory, SystemFacts::Uptime})
        lines.append(factLine(SystemFacts::fact(kind, state)));
    lines.append({QString(), tr("File systems")});
    for (const MountedVolume &mounted : storage)
        lines.append(storageLine(mounted));
    return lines.join(u'\n') + u'\n';
}

QString SystemReport::storageLine(const MountedVolume &mounted) {
    const Volume &volume = mounted.volume;
    return tr("%1: %2, %3 free (%4, %5)")
        .arg(mounted.mount.directory, Amounts::usedOf(volume.used, volume.total),
             Amounts::bytes(volume.available), mounted.mount.device, mounted.mount.type);
}
