// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QMap>

class GenericPlugin;
class QWidget;
class VBoxPopup;

/// The pop-ups to choose a settings plug-in from: one for each caller, made when it is first asked for and kept.
/// GUI thread only.
class AppPopups {
public:
    /// Every pop-up becomes a child of `parent` and opens beside `caller`; both must outlive the pop-ups.
    AppPopups(QWidget *parent, QWidget *caller);

    /// The pop-up of `key`, which may be null and is compared only. Made from the titles of `plugins` unless it was
    /// made earlier; null when there is none and `plugins` is empty.
    VBoxPopup *popup(void *key, QList<GenericPlugin *> plugins);

private:
    QWidget *makeButton(GenericPlugin *plugin) const;

    QWidget *parentWidget;
    QWidget *callerWidget;
    QMap<void *, VBoxPopup *> popupsByCaller;
};
