// SPDX-License-Identifier: GPL-3.0-or-later
#include "power/keyfilter.h"

#include "hostpath.h"
#include "ui/launcherwindow.h"

#include <warningwindow.h>

#include <QFile>
#include <QFileInfo>
#include <QProcess>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char highBrightness[] = "255";
constexpr char lowBrightness[] = "1";

} // namespace

KeyFilter::KeyFilter(LauncherWindow *window) : launcher(window) {}

bool KeyFilter::filter(int, int keycode, int, bool isPress, bool) {
    switch (keycode) {
    case Qt::Key_F1:
    case Qt::Key_F2:
        return isPress;
    case Qt::Key_Pause:
    case Qt::Key_Home:
    case Qt::Key_F3:
    case Qt::Key_F4:
        isPress ? press(keycode) : release(keycode);
        return true;
    default:
        return false;
    }
}

void KeyFilter::press(int keycode) {
    if (keycode == Qt::Key_Pause)
        Suspend();
    else if (keycode == Qt::Key_Home)
        launcher->goHome();
    else if (keycode == Qt::Key_F3 && !std::exchange(brightnessIsHeld, true))
        Brightness();
    else if (keycode == Qt::Key_F4 && !std::exchange(infoIsHeld, true))
        launcher->toggleInfoPanel();
}

void KeyFilter::release(int keycode) {
    if (keycode == Qt::Key_F3)
        brightnessIsHeld = false;
    else if (keycode == Qt::Key_F4)
        infoIsHeld = false;
}

void KeyFilter::Brightness() {
    const QString path = hostPath(u"/sys/devices/platform/pmmcu.0/brightness"_s);
    // Something that is no file might keep us waiting for ever.
    if (!QFileInfo(path).isFile())
        return;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return;
    file.write(isHighNext ? highBrightness : lowBrightness);
    isHighNext = !isHighNext;
}

void KeyFilter::Suspend() {
    if (powerDialogIsOpen)
        return;
    powerDialogIsOpen = true;
    WarningWindow question(launcher);
    const int answer = question.exec(QObject::tr("Do you really mean to power off device?"), QString(),
                                     QObject::tr("Yes"), QObject::tr("No"));
    if (answer)
        QProcess::execute(u"sudo"_s, {u"/sbin/shutdown"_s, u"-h"_s, u"now"_s});
    powerDialogIsOpen = false;
}
