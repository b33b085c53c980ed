// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <functional>

class QWidget;

/// One of the instrument's own widgets in one of its states.
struct ShownWidget {
    QString name;
    /// The caller takes ownership. Colours are those of PaletteFactory's set at the time.
    std::function<QWidget *()> make;
    /// Puts it into its state once it is shown; empty for a widget that is made in it.
    std::function<void(QWidget *)> enterState;
    /// The palette whose Window colour it stands on.
    QString ground;
};

const QList<ShownWidget> &widgetGallery();
