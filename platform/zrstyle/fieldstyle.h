// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBrush>
#include <QStyle>

class QPainter;
class QStyleOption;
class QStyleOptionComboBox;
class QStyleOptionSpinBox;

/// What a value is written or chosen in: line edits, spin boxes, combo boxes; the frames of texts and lists.
namespace FieldStyle {

/// Between the edge of a text or list and what it shows: its square corners stay inside the round ones.
constexpr int frameWidth = 6;

QBrush ground(const QStyleOption &option);
void drawFrame(const QStyleOption &option, const QBrush &fill, QPainter *painter);
QRect textRect(const QRect &field);
QSize size(const QSize &contents);

void drawComboBox(const QStyleOptionComboBox &option, QPainter *painter);
QRect comboBoxPart(const QStyleOptionComboBox &option, QStyle::SubControl part);
QSize comboBoxSize(const QSize &contents);

/// Its steps stand side by side, each as wide as a thumb.
void drawSpinBox(const QStyleOptionSpinBox &option, QPainter *painter);
QRect spinBoxPart(const QStyleOptionSpinBox &option, QStyle::SubControl part);
QSize spinBoxSize(const QStyleOptionSpinBox &option, const QSize &contents);

} // namespace FieldStyle
