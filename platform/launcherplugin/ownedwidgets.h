// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

/// Widgets that go when their plug-in goes, wherever they hang in the launcher's widget tree by then.
///
/// A plug-in's code is unmapped right after its root object is destroyed, so no widget of it may live longer.
/// A widget that somebody else has deleted meanwhile is passed over. GUI thread only.
class OwnedWidgets {
public:
    OwnedWidgets() = default;
    ~OwnedWidgets();
    OwnedWidgets(const OwnedWidgets &) = delete;
    OwnedWidgets &operator=(const OwnedWidgets &) = delete;

    /// Takes `widget` over and hands it back.
    template <typename Widget>
    Widget *add(Widget *widget) {
        widgets.removeAll(QPointer<QWidget>());
        widgets.append(widget);
        return widget;
    }

private:
    QList<QPointer<QWidget>> widgets;
};
