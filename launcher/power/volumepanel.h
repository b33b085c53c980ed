// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <popuppanel.h>

#include <QPixmap>

class QLabel;
class RoundSlider;

/// A panel with two sliders, loudspeaker and microphone, for plug-ins that want a volume control. It reads and sets the sound card's
/// mixer with the command "amixer" (ALSA, amixer manual): the simple controls "Master" and "Capture".
///
/// The levels are read once, when the panel is made, which takes up to a second; each move of a slider waits for its
/// command. Where there is no mixer the levels are 0. GUI thread only.
class VolumePanel : public PopupPanel {
    Q_OBJECT

public:
    explicit VolumePanel(QWidget *parent = nullptr);

    /// Opens the panel beside the middle of `callerRect`, in screen coordinates, and draws a loudspeaker there.
    void invoke(QRect callerRect);

    /// Reads both levels from the mixer.
    void soundLevels();
    void setSpeakerVolume();
    void setMicrophoneLevel();
    void setSoundLevel(const QString &control, int level);

signals:
    /// For hosts that switch the sound on and off; the panel itself never does.
    void enableChanged(bool enabled);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private slots:
    void speakerVolumeChanged(int pos);
    void microphoneLevelChanged(int pos);

private:
    QLabel *makeIcon();
    void tintIcons();

    QLabel *speakerIcon;
    RoundSlider *speakerSlider;
    QLabel *microphoneIcon;
    RoundSlider *microphoneSlider;
    QPixmap callerPixmap;
    int microphoneLevel = 0;
    int speakerVolume = 0;
};
