// SPDX-License-Identifier: GPL-3.0-or-later
#include "machinecontrol.h"

#include <QDeadlineTimer>
#include <QJsonDocument>
#include <QThread>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int answerTime = 20'000;

/// The event, and the device that it is about or the reason that it has. What is inside of a device has no name.
QString eventOf(const QJsonObject &message) {
    const QJsonObject data = message.value(u"data"_s).toObject();
    const QString detail = data.value(data.contains(u"device"_s) ? u"device"_s : u"reason"_s).toString();
    return QString(message.value(u"event"_s).toString() + u' ' + detail).trimmed();
}

} // namespace

bool MachineControl::connectTo(const QString &name) {
    const QDeadlineTimer deadline(answerTime);
    do {
        socket.connectToServer(name);
        if (socket.waitForConnected(100))
            break;
        QThread::msleep(20);
    } while (!deadline.hasExpired());
    // It greets first, and takes no command before this one.
    return !read(answerTime).isEmpty() && socket.isOpen() && (execute(u"qmp_capabilities"_s), true);
}

QJsonObject MachineControl::execute(const QString &command, const QJsonObject &arguments) {
    QJsonObject message{{u"execute"_s, command}};
    if (!arguments.isEmpty())
        message.insert(u"arguments"_s, arguments);
    socket.write(QJsonDocument(message).toJson(QJsonDocument::Compact) + '\n');
    socket.flush();

    while (true) {
        const QJsonObject answer = read(answerTime);
        if (answer.contains(u"return"_s))
            return answer.value(u"return"_s).toObject();
        if (answer.isEmpty() || answer.contains(u"error"_s)) {
            qWarning("%s: %s", qPrintable(command), QJsonDocument(answer).toJson().constData());
            return {};
        }
        events << eventOf(answer);
    }
}

bool MachineControl::waitForEvent(const QString &event, int milliseconds) {
    const QDeadlineTimer deadline(milliseconds);
    while (!events.contains(event)) {
        const QJsonObject message = read(static_cast<int>(deadline.remainingTime()));
        if (message.isEmpty())
            return false;
        events << eventOf(message);
    }
    events.removeAll(event);
    return true;
}

QJsonObject MachineControl::read(int milliseconds) {
    const QDeadlineTimer deadline(milliseconds);
    while (!socket.canReadLine()) {
        if (!socket.waitForReadyRead(static_cast<int>(deadline.remainingTime())))
            return {};
    }
    return QJsonDocument::fromJson(socket.readLine()).object();
}
