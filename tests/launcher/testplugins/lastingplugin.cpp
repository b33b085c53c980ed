// SPDX-License-Identifier: GPL-3.0-or-later
#include "lastingplugin.h"

#include <QDialog>
#include <QTimer>

#include <iostream>

namespace {

constexpr bool opensDialog = OPENS_DIALOG;

class StubbornDialog : public QDialog {
public:
    void reject() override {}
};

void openDialog() {
    StubbornDialog dialog;
    QTimer::singleShot(0, &dialog, [] { std::cerr << "dialog is open\n" << std::flush; });
    dialog.exec();
}

} // namespace

LastingPlugin::LastingPlugin() {
    child.start(QStringLiteral("sleep"), {QStringLiteral("1000")});
    child.waitForStarted();
    std::cerr << "child " << child.processId() << '\n' << std::flush;
    if (opensDialog)
        QTimer::singleShot(0, this, openDialog);
}
