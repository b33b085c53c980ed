// SPDX-License-Identifier: GPL-3.0-or-later
#include "popuplabel.h"

#include "statuspanel.h"

namespace {

constexpr int ownPanelWidth = 200;

} // namespace

PopupLabel::PopupLabel(QWidget *parent, StatusPanel *panel)
    : PressingLabel(parent, false), popupPanel(panel ? panel : new StatusPanel(this, ownPanelWidth)) {
    connect(this, &PressingLabel::clicked, this, &PopupLabel::togglePanel);
}

void PopupLabel::togglePanel() {
    if (popupPanel->isVisible())
        popupPanel->hide();
    else
        popupPanel->invoke(QRect(mapToGlobal(QPoint(0, 0)), size()));
}
