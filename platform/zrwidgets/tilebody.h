// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>

/// The filled rectangle with round corners and an edge of one pixel that a tile stands on.
///
/// A page shows many of the same size and colours: each is drawn once, and copied from then on. The last few are
/// kept. GUI thread only.
struct TileBody {
    QSize size;
    qreal pixelRatio = 1;
    QColor fill;
    QColor edge;

    bool operator==(const TileBody &other) const = default;

    QImage picture() const;

private:
    QImage drawn() const;
};
