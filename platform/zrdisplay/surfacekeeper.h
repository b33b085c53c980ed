// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

/// Lets dialogs and pop-ups that are closed keep their place on the screen, as hidden ones do. Qt gives it up when a
/// window is closed (accept(), reject() and close() of a widget), and linuxfb then never draws that window again: it
/// comes back with the keyboard, but cannot be seen.
///
/// Works while it lives, on all windows of the application but its main ones. GUI thread.
class SurfaceKeeper : public QObject {
public:
    /// Its parent owns it. The application object has to exist.
    explicit SurfaceKeeper(QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;
};
