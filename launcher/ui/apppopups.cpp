// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/apppopups.h"

#include "ui/vboxpopup.h"

#include <genericplugin.h>

#include <QPushButton>

namespace {

constexpr int buttonHeight = 52;
constexpr int buttonWidth = 140;

} // namespace

AppPopups::AppPopups(QWidget *parent, QWidget *caller) : parentWidget(parent), callerWidget(caller) {}

VBoxPopup *AppPopups::popup(void *key, QList<GenericPlugin *> plugins) {
    if (!popupsByCaller.contains(key) && !plugins.isEmpty()) {
        QList<QWidget *> buttons;
        for (GenericPlugin *const plugin : std::as_const(plugins))
            buttons.append(makeButton(plugin));
        popupsByCaller[key] = new VBoxPopup(buttons, callerWidget, parentWidget);
    }
    return popupsByCaller.value(key);
}

QWidget *AppPopups::makeButton(GenericPlugin *plugin) const {
    auto *const button = new QPushButton(plugin->title());
    // The letters it will have; the pop-up asks for its size before it becomes the parent.
    if (parentWidget)
        button->setFont(parentWidget->font());
    button->setMinimumSize(buttonWidth, buttonHeight);
    button->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);
    QObject::connect(button, SIGNAL(clicked()), plugin, SLOT(showWindow()));
    return button;
}
