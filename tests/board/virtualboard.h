// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "guestshell.h"
#include "machinecontrol.h"

#include <QImage>
#include <QProcess>
#include <QSize>
#include <QTemporaryDir>

/// A board in an emulated machine: screen, keyboard, touch screen, sound, USB, and a shell on a line of its own. What is
/// written to its disk is forgotten with it.
class VirtualBoard {
public:
    /// Starts the image in the directory `image`, for the architecture that its packages are made for.
    VirtualBoard(const QString &architecture, const QString &image, const QSize &screen);
    ~VirtualBoard();

    /// Whether its shell answers.
    bool start();
    /// Whether it switched itself off; a restart does not count.
    bool waitForPowerOff();

    GuestShell::Result run(const QByteArray &command, int milliseconds = 120'000);

    const QSize &screenSize() const { return screen; }
    /// What the screen shows; a null image when it cannot be had.
    QImage picture();

    /// A key by the emulator's name for it, for instance "f4".
    void pressKey(const QString &key) { pressTogether({key}); }
    void pressTogether(const QStringList &keys);
    void touch(const QPoint &place);

    /// Plugs a flash drive in whose contents are the file `drive`; it stays one until it is pulled.
    void plugDrive(const QString &drive);
    /// Whether it is out.
    bool pullDrive();

private:
    QStringList machine() const;
    void sendInput(const QJsonArray &events);

    const QString architecture;
    const QString image;
    const QSize screen;
    QTemporaryDir sockets;
    QProcess emulator;
    MachineControl control;
    GuestShell shell;
};
