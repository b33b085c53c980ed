// SPDX-License-Identifier: GPL-3.0-or-later
#include "controlbottompanel.h"

#include <QHBoxLayout>

namespace {

// As wide as the icons above it.
constexpr QMargins margins(40, 6, 40, 8);
constexpr int spacing = 8;

} // namespace

ControlBottomPanel::ControlBottomPanel(QWidget *parent)
    : QWidget(parent),
      rowLayout(new QHBoxLayout(this)),
      leftLayout(new QHBoxLayout),
      rightLayout(new QHBoxLayout) {
    rowLayout->setContentsMargins(margins);
    rowLayout->setSpacing(spacing);
    leftLayout->setSpacing(spacing);
    rightLayout->setSpacing(spacing);
    rowLayout->addLayout(leftLayout);
    rowLayout->addStretch(1);
    rowLayout->addLayout(rightLayout);
}

void ControlBottomPanel::addWidget(QWidget *widget, int position, int stretch, Qt::Alignment alignment) {
    (position == RightEnd ? rightLayout : leftLayout)->addWidget(widget, stretch, alignment);
}

void ControlBottomPanel::removeWidget(QWidget *widget) {
    leftLayout->removeWidget(widget);
    rightLayout->removeWidget(widget);
}
