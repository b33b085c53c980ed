// SPDX-License-Identifier: GPL-3.0-or-later
#include "controlbottompanel.h"

#include "thumbscroll.h"

#include <QAbstractButton>
#include <QEvent>
#include <QHBoxLayout>

namespace {

// As wide as the icons above it.
constexpr QMargins margins(40, 6, 40, 8);
constexpr int spacing = 8;

} // namespace

ControlBottomPanel::ControlBottomPanel(QWidget *parent)
    : QWidget(parent),
      rowLayout(new ScrolledLayout<QHBoxLayout>(this)),
      leftLayout(new QHBoxLayout),
      rightLayout(new QHBoxLayout),
      scroll(new ThumbScroll(this, Qt::Horizontal)) {
    rowLayout->scroll = scroll;
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
    if (qobject_cast<QAbstractButton *>(widget))
        connect(widget, SIGNAL(toggled(bool)), this, SLOT(showChecked()), Qt::UniqueConnection);
}

void ControlBottomPanel::removeWidget(QWidget *widget) {
    widget->disconnect(this);
    leftLayout->removeWidget(widget);
    rightLayout->removeWidget(widget);
}

QSize ControlBottomPanel::minimumSizeHint() const {
    return {1, rowLayout->minimumSize().height()};
}

bool ControlBottomPanel::event(QEvent *event) {
    const bool isHandled = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize ||
        event->type() == QEvent::Show) {
        scroll->setNeededLength(rowLayout->minimumSize().width());
        showChecked();
    }
    return isHandled;
}

void ControlBottomPanel::showChecked() {
    // Laying out for each page that is added before anybody looks would cost more than the page.
    if (!isVisible())
        return;
    for (const QAbstractButton *const button : findChildren<QAbstractButton *>(Qt::FindDirectChildrenOnly)) {
        if (button->isChecked())
            scroll->showWhole(button);
    }
}
