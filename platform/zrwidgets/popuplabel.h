// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pressinglabel.h"

class StatusPanel;

/// A picture that opens a panel beside itself when it is pressed. GUI thread only.
class PopupLabel : public PressingLabel {
    Q_OBJECT

public:
    /// The panel stays the caller's; a label without one makes its own.
    PopupLabel(QWidget *parent, StatusPanel *panel);

    StatusPanel *panel() const { return popupPanel; }

private:
    void togglePanel();

    StatusPanel *popupPanel;
};
