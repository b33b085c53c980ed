// SPDX-License-Identifier: GPL-3.0-or-later
#include "keyboardtap.h"

// The platform's own delivery of input. An event filter of the application comes too late: shortcuts go first.
#include <qpa/qwindowsysteminterface_p.h>

namespace {

using PrivateInterface = QWindowSystemInterfacePrivate;

PlatformKey platformKey(const PrivateInterface::KeyEvent &event) {
    return {event.unicode.isEmpty() ? 0 : event.unicode.at(0).unicode(), event.key,
            static_cast<int>(event.modifiers.toInt()), event.keyType == QEvent::KeyPress, event.repeat};
}

class KeyboardTap : public QWindowSystemEventHandler {
public:
    explicit KeyboardTap(const std::function<bool(const PlatformKey &)> &consumer) : isConsumed(consumer) {
        PrivateInterface::installWindowSystemEventHandler(this);
    }

    ~KeyboardTap() override { PrivateInterface::removeWindowSystemEventhandler(this); }

    bool sendEvent(PrivateInterface::WindowSystemEvent *event) override {
        if (event->type == PrivateInterface::Key) {
            const auto &key = *static_cast<const PrivateInterface::KeyEvent *>(event);
            const bool isKey = key.keyType == QEvent::KeyPress || key.keyType == QEvent::KeyRelease;
            if (isKey && isConsumed(platformKey(key))) {
                event->eventAccepted = true;
                return true;
            }
        }
        return QWindowSystemEventHandler::sendEvent(event);
    }

private:
    std::function<bool(const PlatformKey &)> isConsumed;
};

} // namespace

void tapKeyboard(const std::function<bool(const PlatformKey &)> &isConsumed) {
    // Left to the end of the process: Qt may deliver keys until then.
    new KeyboardTap(isConsumed);
}
