// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBrush>

class QAbstractScrollArea;
class QStyleOption;
class QWidget;

/// What the contents of a list or text lie on: its frame, header and scroll bars do so, too.
namespace AreaGround {

QBrush of(const QAbstractScrollArea *area);
/// Of the list or text that `widget`, a header or scroll bar, belongs to.
QBrush below(const QStyleOption &option, const QWidget *widget);

} // namespace AreaGround
