// SPDX-License-Identifier: GPL-3.0-or-later
#include "power/mixerlisting.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

std::optional<int> levelInMixerLine(const QString &line, const QString &control) {
    if (!line.contains(control))
        return std::nullopt;
    const qsizetype bracket = line.indexOf(u'[');
    if (bracket < 0)
        return std::nullopt;
    return line.mid(bracket + 1).remove("%]"_L1).toInt();
}

MixerLevels mixerLevels(const QString &listing) {
    MixerLevels levels;
    for (const QString &line : listing.split(u'\n')) {
        levels.speaker = levelInMixerLine(line, u"Front Left: Playback"_s).value_or(levels.speaker);
        levels.microphone = levelInMixerLine(line, u"Mono: Capture"_s).value_or(levels.microphone);
    }
    return levels;
}
