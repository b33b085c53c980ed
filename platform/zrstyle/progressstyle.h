// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

class QPainter;
class QStyleOptionProgressBar;

/// Progress bars: a rounded trough that fills with the accent, the text over it legible on both.
namespace ProgressStyle {

void drawTrough(const QStyleOptionProgressBar &option, QPainter *painter);
/// Stripes that stand still where it is not known how much there is to do.
void drawProgress(const QStyleOptionProgressBar &option, QPainter *painter);
void drawText(const QStyleOptionProgressBar &option, QPainter *painter);
QSize size(const QStyleOptionProgressBar &option, const QSize &contents);

} // namespace ProgressStyle
