// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ownedwidgets.h"

#include <QObject>
#include <QString>

class AbstractKeeper;

/// Identifies a plug-in of this kind in its metadata: Q_PLUGIN_METADATA(IID GenericPlugin_iid).
#define GenericPlugin_iid "talvenor.zr-launcher.GenericPlugin/1.0"

/// Root object of a plug-in library, configuration "ver" 2.
///
/// The launcher asks once for `iconWidget()` and `statusWidget()` and places them; the window is created when
/// it is first wanted. The plug-in keeps owning all three: the launcher takes them out of its own tree before
/// it unloads the library, and the plug-in must destroy them with itself (`own()` does). GUI thread only.
///
/// Plug-ins are built apart from the launcher: the order of the virtual operations is part of the contract.
class GenericPlugin : public QObject {
    Q_OBJECT

public:
    explicit GenericPlugin(QObject *parent = nullptr);
    ~GenericPlugin() override;

    /// Whether the window exists already.
    bool windowCreated() const { return createdWindow != nullptr; }
    /// The name that the launcher shows where the user chooses among settings plug-ins.
    QString title() const { return currentTitle; }
    /// The plug-in's agent for Save and Load; null when it saves and loads nothing.
    AbstractKeeper *keeper() const { return currentKeeper; }

    /// The plug-in's window, made by `createWindow()` at the first call. Plug-ins override that one, not this: only
    /// a window made there counts as created, and is taken out before the library is unmapped.
    virtual QWidget *pluginWindow();
    /// Makes the window. The launcher never calls this; the base makes none.
    virtual QWidget *createWindow();
    /// The icon for the page of the plug-in's collection, or null.
    virtual QWidget *iconWidget();
    /// The line or lines for the collection's information panel, or null.
    virtual QWidget *statusWidget();

public slots:
    /// Brings the window up. The base emits `setCurrentWidget` with it.
    virtual void showWindow();

signals:
    /// Asks the launcher to show `window`. To be emitted by the plug-in itself: the launcher knows the plug-in
    /// by the sender.
    void setCurrentWidget(QWidget *window);

protected:
    void setTitle(const QString &title);
    /// `keeper` stays the caller's; usually it is a child of the plug-in.
    void setKeeper(AbstractKeeper *keeper);
    /// Takes `widget` over: it is destroyed with the plug-in, whatever its parent is then.
    template <typename Widget>
    Widget *own(Widget *widget) {
        return ownedWidgets.add(widget);
    }

private:
    QPointer<QWidget> createdWindow;
    QString currentTitle;
    AbstractKeeper *currentKeeper = nullptr;
    OwnedWidgets ownedWidgets;
};
