// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fontsizes.h"

#include <QPainter>
#include <QStringList>

/// A short text, such as a button's, made to fit the room there is for it.
struct FittedText {
    QFont font;
    QStringList lines;

    /// Takes the first of these in which the whole text fits: the largest size and the smaller ones, each on as
    /// many lines as the room is high, broken between words; the smallest size, set tighter step by step. A text
    /// that fits in none is set as tight as can be read and ends in an ellipsis.
    static FittedText in(const QSize &room, const QString &text, const QFont &font,
                         FontSizes::PixelSize largest);

    /// Draws the lines in `rect`, in the painter's colour.
    void draw(QPainter *painter, const QRect &rect, Qt::Alignment alignment) const;
};
