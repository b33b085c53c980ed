// SPDX-License-Identifier: GPL-3.0-or-later
#include "power/volumepanel.h"

#include "power/mixerlisting.h"

#include <pngpicture.h>
#include <roundslider.h>
#include <tintedpicture.h>

#include <QDeadlineTimer>
#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QProcess>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto longestListing = 1000ms;
constexpr qsizetype mostListingBytes = 16 * 1024 * 1024;
constexpr int highestLevel = 100;

/// What amixer lists; empty when it fails, does not end in time, or lists without end.
QByteArray mixerListing() {
    const QDeadlineTimer deadline(longestListing);
    QProcess mixer;
    mixer.setStandardErrorFile(QProcess::nullDevice());
    mixer.start(u"amixer"_s, QStringList(), QIODevice::ReadWrite);
    QByteArray listing;
    while (mixer.state() != QProcess::NotRunning && !deadline.hasExpired() &&
           listing.size() < mostListingBytes) {
        mixer.waitForReadyRead(static_cast<int>(deadline.remainingTime()));
        listing += mixer.readAllStandardOutput();
    }
    if (mixer.state() != QProcess::NotRunning) {
        mixer.kill();
        mixer.waitForFinished();
        return {};
    }
    const bool succeeded = mixer.exitStatus() == QProcess::NormalExit && mixer.exitCode() == 0;
    return succeeded ? listing + mixer.readAllStandardOutput() : QByteArray();
}

} // namespace

VolumePanel::VolumePanel(QWidget *parent)
    : PopupPanel(parent),
      speakerIcon(makeIcon()),
      speakerSlider(new RoundSlider(this)),
      microphoneIcon(makeIcon()),
      microphoneSlider(new RoundSlider(this)),
      callerPixmap(u":/main/resources/speaker.png"_s) {
    connect(speakerSlider, SIGNAL(positionChanged(int)), this, SLOT(speakerVolumeChanged(int)));
    connect(microphoneSlider, SIGNAL(positionChanged(int)), this, SLOT(microphoneLevelChanged(int)));
    tintIcons();
    setClipCallerRect(false);
    setCallerRectMargin(3);
    soundLevels();
    speakerSlider->setPosition(speakerVolume);
    microphoneSlider->setPosition(microphoneLevel);
}

QLabel *VolumePanel::makeIcon() {
    auto *const icon = new QLabel(this);
    icon->setAlignment(Qt::AlignCenter);
    return icon;
}

void VolumePanel::tintIcons() {
    const QColor ink = palette().color(QPalette::WindowText);
    speakerIcon->setPixmap(tintedPicture(pngPicture(u":/main/resources/speaker_black.png"_s), ink));
    microphoneIcon->setPixmap(tintedPicture(pngPicture(u":/main/resources/microphone_black.png"_s), ink));
}

void VolumePanel::changeEvent(QEvent *event) {
    PopupPanel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        tintIcons();
}

void VolumePanel::soundLevels() {
    const MixerLevels levels = mixerLevels(QString::fromLocal8Bit(mixerListing()));
    speakerVolume = levels.speaker;
    microphoneLevel = levels.microphone;
}

void VolumePanel::setSpeakerVolume() {
    setSoundLevel(u"Master"_s, speakerVolume);
}

void VolumePanel::setMicrophoneLevel() {
    setSoundLevel(u"Capture"_s, microphoneLevel);
}

void VolumePanel::setSoundLevel(const QString &control, int level) {
    QProcess::execute(u"amixer"_s, {u"set"_s, control, u"%1%"_s.arg(level), u"-q"_s});
}

void VolumePanel::speakerVolumeChanged(int pos) {
    if (pos == speakerVolume)
        return;
    speakerVolume = pos;
    setSpeakerVolume();
}

void VolumePanel::microphoneLevelChanged(int pos) {
    if (pos == microphoneLevel)
        return;
    // Only the ends are taken over; in between the level that the mixer stated is set again.
    if (pos < 0)
        microphoneLevel = 0;
    else if (pos > highestLevel)
        microphoneLevel = highestLevel;
    setMicrophoneLevel();
}

void VolumePanel::showEvent(QShowEvent *event) {
    PopupPanel::showEvent(event);
    speakerIcon->setGeometry(10, 13, 45, 48);
    microphoneIcon->setGeometry(10, 75, 45, 48);
    speakerSlider->setGeometry(58, 13, 260, 48);
    microphoneSlider->setGeometry(58, 75, 260, 48);
    setContentsRect(QRect(0, 0, 332, 136));
}

void VolumePanel::invoke(QRect rect) {
    const QSize size = callerPixmap.size();
    const QPoint centre = rect.center();
    setCallerRect(QRect(QPoint(centre.x() - size.width() / 2, centre.y() - size.height() / 2), size));
    show();
    raise();
}

void VolumePanel::paintEvent(QPaintEvent *event) {
    PopupPanel::paintEvent(event);
    const QPoint centre = callerRect().center() - frameGeometry().topLeft();
    QPainter(this).drawPixmap(centre.x() - callerPixmap.width() / 2 + 1,
                              centre.y() - (callerPixmap.height() - 1) / 2 + 1, callerPixmap);
}
