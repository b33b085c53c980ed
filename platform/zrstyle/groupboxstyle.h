// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyle>

class QStyleOptionGroupBox;

/// Group boxes: the title, or the check box that is one, inside the edge, above what is grouped.
namespace GroupBoxStyle {

QRect partRect(const QStyleOptionGroupBox &option, QStyle::SubControl part);
void draw(const QStyleOptionGroupBox &option, QPainter *painter);
QSize size(const QSize &contents);

} // namespace GroupBoxStyle
