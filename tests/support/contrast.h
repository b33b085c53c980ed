// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

/// Contrast of two opaque colours as the web accessibility guidelines (WCAG 2.1, "contrast ratio") define it:
/// from 1 for the same colour to 21 for black and white.
double contrastRatio(const QColor &one, const QColor &other);
