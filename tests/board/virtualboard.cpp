// SPDX-License-Identifier: GPL-3.0-or-later
#include "virtualboard.h"

#include <QFile>
#include <QJsonArray>
#include <QPoint>

#include <csignal>
#include <sys/prctl.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int powerOffTime = 180'000;
constexpr int pullTime = 60'000;
/// The emulator's absolute coordinates go from 0 to this.
constexpr int touchRange = 0x7fff;

} // namespace

VirtualBoard::VirtualBoard(const QString &boardArchitecture, const QString &imageDirectory,
                           const QSize &screenSize)
    : architecture(boardArchitecture), image(imageDirectory), screen(screenSize) {}

VirtualBoard::~VirtualBoard() {
    emulator.kill();
    emulator.waitForFinished();
}

QStringList VirtualBoard::machine() const {
    const QString size = u"xres=%1,yres=%2"_s.arg(screen.width()).arg(screen.height());
    if (architecture == "arm64"_L1)
        return {u"qemu-system-aarch64"_s,   u"-M"_s, u"virt"_s, u"-cpu"_s, u"cortex-a72"_s, u"-device"_s,
                "virtio-gpu-pci,"_L1 + size};
    return {u"qemu-system-x86_64"_s, u"-cpu"_s, u"max"_s, u"-device"_s, "VGA,"_L1 + size};
}

bool VirtualBoard::start() {
    QStringList words = machine();
    const QString program = words.takeFirst();
    const QString qmp = sockets.filePath(u"qmp"_s);
    const QString line = sockets.filePath(u"shell"_s);
    const QString kernelLine =
        u"root=/dev/vda rw quiet console=tty0 video=%1x%2"_s.arg(screen.width()).arg(screen.height());
    words << u"-accel"_s << u"tcg,thread=multi"_s << u"-smp"_s << u"2"_s << u"-m"_s << u"1024"_s
          << u"-nodefaults"_s << u"-display"_s << u"none"_s << u"-no-reboot"_s                       //
          << u"-kernel"_s << image + "/vmlinuz"_L1 << u"-initrd"_s << image + "/initrd"_L1           //
          << u"-append"_s << kernelLine                                                              //
          << u"-drive"_s << "format=raw,if=virtio,snapshot=on,file="_L1 + image + "/disk"_L1         //
          << u"-device"_s << u"qemu-xhci,id=usb"_s << u"-device"_s << u"usb-kbd"_s                   //
          << u"-device"_s << u"usb-tablet"_s                                                         //
          << u"-audiodev"_s << u"none,id=sound"_s << u"-device"_s << u"intel-hda"_s                  //
          << u"-device"_s << u"hda-duplex,audiodev=sound"_s                                          //
          << u"-device"_s << u"virtio-serial-pci"_s << u"-device"_s << u"virtconsole,chardev=line"_s //
          << u"-chardev"_s << u"socket,id=line,server=on,wait=off,path=%1"_s.arg(line)               //
          << u"-qmp"_s << u"unix:%1,server=on,wait=off"_s.arg(qmp);
    emulator.setProcessChannelMode(QProcess::ForwardedChannels);
    // It would take the whole machine from whoever comes next.
    emulator.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    emulator.start(program, words);
    return emulator.waitForStarted() && control.connectTo(qmp) && shell.connectTo(line);
}

bool VirtualBoard::waitForPowerOff() {
    // A restart would be "SHUTDOWN guest-reset".
    return control.waitForEvent(u"SHUTDOWN guest-shutdown"_s, powerOffTime) && emulator.waitForFinished();
}

GuestShell::Result VirtualBoard::run(const QByteArray &command, int milliseconds) {
    return shell.run(command, milliseconds);
}

QImage VirtualBoard::picture() {
    const QString file = sockets.filePath(u"picture.png"_s);
    QFile::remove(file);
    control.execute(u"screendump"_s, {{u"filename"_s, file}, {u"format"_s, u"png"_s}});
    return QImage(file).convertToFormat(QImage::Format_RGB32);
}

void VirtualBoard::pressTogether(const QStringList &keys) {
    const auto event = [](const QString &key, bool down) {
        const QJsonObject code{{u"type"_s, u"qcode"_s}, {u"data"_s, key}};
        return QJsonObject{{u"type"_s, u"key"_s},
                           {u"data"_s, QJsonObject{{u"down"_s, down}, {u"key"_s, code}}}};
    };
    QJsonArray events;
    for (const QString &key : keys)
        events.append(event(key, true));
    for (auto key = keys.crbegin(); key != keys.crend(); ++key)
        events.append(event(*key, false));
    // At once: the board repeats a key that is down for a quarter of a second.
    sendInput(events);
}

void VirtualBoard::touch(const QPoint &place) {
    const auto move = [this](const QString &axis, int value, int size) {
        sendInput({QJsonObject{
            {u"type"_s, u"abs"_s},
            {u"data"_s, QJsonObject{{u"axis"_s, axis}, {u"value"_s, value * touchRange / size}}}}});
    };
    const auto button = [this](bool down) {
        sendInput({QJsonObject{{u"type"_s, u"btn"_s},
                               {u"data"_s, QJsonObject{{u"down"_s, down}, {u"button"_s, u"left"_s}}}}});
    };
    const auto moveTo = [&](const QPoint &point) {
        move(u"x"_s, point.x(), screen.width());
        move(u"y"_s, point.y(), screen.height());
    };
    // The kernel tells where a finger is when that changes, and a program that was started meanwhile would not know. Two
    // moves at once would be one for it.
    moveTo(place / 2);
    shell.run("sleep 0.2", 30'000);
    moveTo(place);
    button(true);
    button(false);
}

void VirtualBoard::sendInput(const QJsonArray &events) {
    control.execute(u"input-send-event"_s, {{u"events"_s, events}});
}

void VirtualBoard::plugDrive(const QString &drive) {
    control.execute(u"blockdev-add"_s,
                    {{u"driver"_s, u"raw"_s},
                     {u"node-name"_s, u"flash"_s},
                     {u"file"_s, QJsonObject{{u"driver"_s, u"file"_s}, {u"filename"_s, drive}}}});
    control.execute(u"device_add"_s, {{u"driver"_s, u"usb-storage"_s},
                                      {u"id"_s, u"flashdrive"_s},
                                      {u"drive"_s, u"flash"_s},
                                      {u"bus"_s, u"usb.0"_s},
                                      {u"removable"_s, true}});
}

bool VirtualBoard::pullDrive() {
    control.execute(u"device_del"_s, {{u"id"_s, u"flashdrive"_s}});
    const bool isOut = control.waitForEvent(u"DEVICE_DELETED flashdrive"_s, pullTime);
    control.execute(u"blockdev-del"_s, {{u"node-name"_s, u"flash"_s}});
    return isOut;
}
