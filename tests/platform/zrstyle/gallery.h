// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <functional>

class QWidget;

/// Every kind of control that the style draws, as a plug-in makes them.
struct GalleryControl {
    QString name;
    /// The caller takes ownership.
    std::function<QWidget *()> make;
    /// Puts it into the state of being pressed; empty for what cannot be.
    std::function<void(QWidget *)> press;
};

const QList<GalleryControl> &galleryControls();
