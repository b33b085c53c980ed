// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <basepopupwindow.h>

#include <QList>

/// A pop-up with widgets below each other, as large as they ask for. GUI thread only.
class VBoxPopup : public BasePopupWindow {
    Q_OBJECT

public:
    /// The pop-up becomes the widgets' parent. `caller` stays the caller's and must outlive the pop-up; it may be null.
    VBoxPopup(const QList<QWidget *> &widgets, const QWidget *caller, QWidget *parent);

    /// Opens beside the caller; does nothing without one.
    void show();

private:
    const QWidget *caller;
};
