// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "measquality.h"

#include <QColor>

class QPainter;
class QRectF;

/// Colour of a lamp, from the palette "quality". The shape says the same, for those who cannot tell the colours apart.
QColor lampColor(MeasQuality quality);

/// Draws a lamp of at most `largest` pixels centred in `rect`, with the painter's own settings kept. GUI thread only.
/// Shapes: disc = good, triangle = warning, square = bad, ring = not measured.
void drawLamp(QPainter *painter, const QRectF &rect, MeasQuality quality, qreal largest = 12);
