// SPDX-License-Identifier: GPL-3.0-or-later
#include "guestshell.h"

#include <QDeadlineTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int startTime = 180'000;

} // namespace

bool GuestShell::connectTo(const QString &name) {
    socket.connectToServer(name);
    // A terminal echoes what is typed, and a shell says that it waits. Neither is an answer.
    return socket.waitForConnected(10'000) &&
           run("stty -F /dev/hvc0 -echo -onlcr; PS1= PS2=", startTime).status == 0;
}

GuestShell::Result GuestShell::run(const QByteArray &command, int milliseconds) {
    const QByteArray number = QByteArray::number(++commands);
    // The quotes keep an echo of the command from looking like its end.
    socket.write("{ " + command + "\n} 2>&1 </dev/null; echo \"\"END''-" + number + "-$?.\n");
    socket.flush();
    return readUntil("END-" + number + '-', milliseconds);
}

GuestShell::Result GuestShell::readUntil(const QByteArray &mark, int milliseconds) {
    const QDeadlineTimer deadline(milliseconds);
    while (true) {
        const auto end = received.indexOf(mark);
        const auto point = end < 0 ? -1 : received.indexOf('.', end);
        if (point >= 0) {
            const auto statusAt = end + mark.size();
            const Result result{received.mid(statusAt, point - statusAt).toInt(), received.left(end)};
            received.remove(0, received.indexOf('\n', point) + 1);
            return result;
        }
        if (!socket.waitForReadyRead(static_cast<int>(deadline.remainingTime())))
            return {-1, received};
        received += socket.readAll();
    }
}
