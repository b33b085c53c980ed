// SPDX-License-Identifier: GPL-3.0-or-later
#include "power/volumepanel.h"

#include "power/mixerlisting.h"

#include <roundslider.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Over a stand-in for amixer that notes its words, and over the real one where there is a mixer.
class VolumePanelTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void levelsAreReadWhenThePanelIsMade();
    void speakerTakesEveryPosition_data();
    void speakerTakesEveryPosition();
    void microphoneTakesOnlyTheEnds_data();
    void microphoneTakesOnlyTheEnds();
    void badMixerLeavesTheLevelsAtNought_data();
    void badMixerLeavesTheLevelsAtNought();
    void mixerThatMayNotBeRunLeavesTheLevelsAtNought();
    void longListingIsReadWhole();
    void widgetsStandInTheirPlaces();
    void panelOpensBesideItsCaller();
    void realMixerIsRead();

private:
    static QString home() { return qEnvironmentVariable("HOME"); }
    static void setMixer(const QByteArray &listing) {
        QFile file(home() + "/mixer.txt"_L1);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(listing);
    }
    static QStringList commands() {
        QFile file(home() + "/amixer.log"_L1);
        return file.open(QIODevice::ReadOnly)
                   ? QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)
                   : QStringList();
    }
    static RoundSlider *slider(const VolumePanel &panel, int number) {
        return panel.findChildren<RoundSlider *>().value(number);
    }
    /// Makes `script` the only amixer that is found; none when it is empty.
    void putAlone(const QByteArray &script, bool isExecutable = true) {
        QFile file(programs.filePath(u"amixer"_s));
        file.remove();
        if (!script.isEmpty()) {
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(script);
            file.close();
            const auto plain = QFile::ReadOwner | QFile::WriteOwner;
            file.setPermissions(isExecutable ? plain | QFile::ExeOwner : plain);
        }
        // Only what the scripts themselves need.
        for (const QString &name : {u"yes"_s, u"sleep"_s}) {
            if (!QFile::exists(programs.filePath(name)))
                QVERIFY(QFile::link("/bin/"_L1 + name, programs.filePath(name)));
        }
        qputenv("PATH", programs.path().toLocal8Bit());
    }

    QTemporaryDir programs;
    QByteArray path = qgetenv("PATH");
};

void VolumePanelTest::init() {
    QTest::failOnWarning(QRegularExpression(u"^QObject"_s));
    QFile::remove(home() + "/amixer.log"_L1);
    setMixer("  Front Left: Playback 27 [75%]\n  Mono: Capture 31 [40%]\n");
}

void VolumePanelTest::cleanup() {
    qputenv("PATH", path);
}

void VolumePanelTest::levelsAreReadWhenThePanelIsMade() {
    const VolumePanel panel;
    QCOMPARE(slider(panel, 0)->position(), 75);
    QCOMPARE(slider(panel, 1)->position(), 40);
    // Neither of them is set again.
    QVERIFY(commands().isEmpty());
}

void VolumePanelTest::speakerTakesEveryPosition_data() {
    QTest::addColumn<int>("position");
    QTest::addColumn<QStringList>("words");
    QTest::newRow("within") << 55 << QStringList{u"set Master 55% -q"_s};
    QTest::newRow("above") << 120 << QStringList{u"set Master 120% -q"_s};
    QTest::newRow("below") << -5 << QStringList{u"set Master -5% -q"_s};
    QTest::newRow("unchanged") << 75 << QStringList();
}

void VolumePanelTest::speakerTakesEveryPosition() {
    QFETCH(int, position);
    const VolumePanel panel;
    slider(panel, 0)->setPosition(position);
    QTEST(commands(), "words");
}

void VolumePanelTest::microphoneTakesOnlyTheEnds_data() {
    QTest::addColumn<QList<int>>("positions");
    QTest::addColumn<QStringList>("words");
    QTest::newRow("within") << QList<int>{55} << QStringList{u"set Capture 40% -q"_s};
    QTest::newRow("twice within") << QList<int>{55, 60}
                                  << QStringList{u"set Capture 40% -q"_s, u"set Capture 40% -q"_s};
    QTest::newRow("below") << QList<int>{-5} << QStringList{u"set Capture 0% -q"_s};
    QTest::newRow("above") << QList<int>{101} << QStringList{u"set Capture 100% -q"_s};
    QTest::newRow("below, then within")
        << QList<int>{-5, 50} << QStringList{u"set Capture 0% -q"_s, u"set Capture 0% -q"_s};
    QTest::newRow("back to the stored one") << QList<int>{55, 40} << QStringList{u"set Capture 40% -q"_s};
}

void VolumePanelTest::microphoneTakesOnlyTheEnds() {
    QFETCH(QList<int>, positions);
    const VolumePanel panel;
    for (const int position : positions)
        slider(panel, 1)->setPosition(position);
    QTEST(commands(), "words");
}

void VolumePanelTest::badMixerLeavesTheLevelsAtNought_data() {
    QTest::addColumn<QByteArray>("script");
    const QByteArray sh = "#!/bin/sh\n";
    const QByteArray level = "echo 'Mono: Capture 1 [5%]'\n";
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("says nothing") << sh;
    QTest::newRow("fails") << sh + level + "exit 1\n";
    QTest::newRow("crashes") << sh + level + "kill -SEGV $$\n";
    QTest::newRow("hangs") << sh + level + "exec sleep 60\n";
    QTest::newRow("never stops talking") << sh + "exec yes 'Mono: Capture 1 [5%]'\n";
    QTest::newRow("never stops complaining") << sh + "exec yes >&2\n";
    QTest::newRow("is no program") << QByteArray("\x7f"
                                                 "ELF nonsense");
}

void VolumePanelTest::badMixerLeavesTheLevelsAtNought() {
    QFETCH(QByteArray, script);
    putAlone(script);
    QElapsedTimer timer;
    timer.start();
    const VolumePanel panel;
    QCOMPARE(slider(panel, 0)->position(), 0);
    QCOMPARE(slider(panel, 1)->position(), 0);
    QVERIFY2(timer.elapsed() < 10'000, qPrintable(QString::number(timer.elapsed())));
}

void VolumePanelTest::mixerThatMayNotBeRunLeavesTheLevelsAtNought() {
    putAlone("#!/bin/sh\necho 'Mono: Capture 1 [5%]'\n", false);
    const VolumePanel panel;
    QCOMPARE(slider(panel, 1)->position(), 0);
}

void VolumePanelTest::longListingIsReadWhole() {
    setMixer(QByteArray("Simple mixer control 'Line',0\n").repeated(100'000) + "  Mono: Capture 31 [44%]\n");
    const VolumePanel panel;
    QCOMPARE(slider(panel, 1)->position(), 44);
}

void VolumePanelTest::widgetsStandInTheirPlaces() {
    VolumePanel panel;
    panel.invoke(QRect(400, 200, 60, 60));
    QCOMPARE(panel.size(), QSize(332, 136));
    QCOMPARE(slider(panel, 0)->geometry(), QRect(58, 13, 260, 48));
    QCOMPARE(slider(panel, 1)->geometry(), QRect(58, 75, 260, 48));
    QCOMPARE(panel.findChildren<QLabel *>().value(0)->geometry(), QRect(10, 13, 45, 48));
    QCOMPARE(panel.findChildren<QLabel *>().value(1)->geometry(), QRect(10, 75, 45, 48));
    for (const QLabel *const icon : panel.findChildren<QLabel *>())
        QVERIFY(!icon->pixmap().isNull());
    // Also when it is shown again.
    panel.close();
    panel.invoke(QRect(100, 100, 60, 60));
    QCOMPARE(panel.size(), QSize(332, 136));
    QCOMPARE(slider(panel, 1)->geometry(), QRect(58, 75, 260, 48));
    panel.close();
}

void VolumePanelTest::panelOpensBesideItsCaller() {
    VolumePanel panel;
    panel.invoke(QRect(400, 200, 61, 61));
    // A rectangle of the picture's size around the middle.
    QCOMPARE(panel.callerRect(), QRect(430 - 24, 230 - 24, 48, 48));
    QVERIFY(panel.isVisible());
    QVERIFY(!panel.geometry().intersects(panel.callerRect()));
    panel.close();
}

void VolumePanelTest::realMixerIsRead() {
    QByteArrayList directories = path.split(':');
    directories.removeFirst();
    qputenv("PATH", directories.join(':'));
    const bool isInstalled = !QStandardPaths::findExecutable(u"amixer"_s).isEmpty();
    QVERIFY(isInstalled);
    if (!QFile::exists(u"/proc/asound/card0"_s))
        QSKIP("this machine has no sound card, so the real amixer has nothing to list");
    QProcess mixer;
    mixer.start(u"amixer"_s, QStringList());
    QVERIFY(mixer.waitForFinished());
    const MixerLevels levels = mixerLevels(QString::fromLocal8Bit(mixer.readAllStandardOutput()));
    const VolumePanel panel;
    QCOMPARE(slider(panel, 0)->position(), levels.speaker);
    QCOMPARE(slider(panel, 1)->position(), levels.microphone);
}

QTEST_MAIN(VolumePanelTest)
#include "tst_volumepanel.moc"
