// SPDX-License-Identifier: GPL-3.0-or-later
#include "power/mixerlisting.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class MixerListingTest : public QObject {
    Q_OBJECT

private slots:
    void lastStatementCounts_data();
    void lastStatementCounts();
};

void MixerListingTest::lastStatementCounts_data() {
    QTest::addColumn<QString>("listing");
    QTest::addColumn<int>("speaker");
    QTest::addColumn<int>("microphone");
    QTest::newRow("empty") << QString() << 0 << 0;
    QTest::newRow("bracket closes the line") << u"  Front Left: Playback 27 [87%]"_s << 87 << 0;
    QTest::newRow("text behind the bracket reads as 0")
        << u"  Front Left: Playback 27 [87%] [on]"_s << 0 << 0;
    QTest::newRow("microphone") << u"  Mono: Capture 31 [100%]"_s << 0 << 100;
    QTest::newRow("text behind the microphone's") << u"  Mono: Capture 31 [100%] [30.00dB] [on]"_s << 0 << 0;
    QTest::newRow("later one decides")
        << u"Front Left: Playback 1 [10%]\nFront Left: Playback 2 [20%]"_s << 20 << 0;
    QTest::newRow("later one that reads as 0 decides too")
        << u"Front Left: Playback 1 [10%]\nFront Left: Playback 2 [20%] [on]"_s << 0 << 0;
    QTest::newRow("line without a bracket says nothing")
        << u"Front Left: Playback 1 [10%]\nFront Left: Playback"_s << 10 << 0;
    QTest::newRow("other channels") << u"Front Right: Playback 1 [10%]\nMono: Playback 2 [20%]"_s << 0 << 0;
    QTest::newRow("other case") << u"front left: playback 1 [10%]"_s << 0 << 0;
    QTest::newRow("both in one line") << u"Front Left: Playback Mono: Capture [55%]"_s << 55 << 55;
    QTest::newRow("carriage return") << u"Mono: Capture 31 [40%]\r"_s << 0 << 40;
    QTest::newRow("no number") << u"Mono: Capture 31 [much]"_s << 0 << 0;
    QTest::newRow("number that is too large") << u"Mono: Capture 31 [99999999999%]"_s << 0 << 0;
    QTest::newRow("negative") << u"Mono: Capture 31 [-5%]"_s << 0 << -5;
    QTest::newRow("other language") << u"Передний левый: Воспроизведение 1 [10%]"_s << 0 << 0;
    QTest::newRow("megabytes") << QString(u"Simple mixer control 'Line',0\n"_s.repeated(100'000) +
                                          "Front Left: Playback 1 [33%]"_L1)
                               << 33 << 0;
}

void MixerListingTest::lastStatementCounts() {
    QFETCH(QString, listing);
    const MixerLevels levels = mixerLevels(listing);
    QTEST(levels.speaker, "speaker");
    QTEST(levels.microphone, "microphone");
}

QTEST_GUILESS_MAIN(MixerListingTest)
#include "tst_mixerlisting.moc"
