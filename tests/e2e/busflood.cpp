// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <algorithm>
#include <chrono>
#include <iostream>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr std::chrono::nanoseconds batchTime = 10ms;

QDBusMessage signalOf(const QString &interface, const QString &name, const QVariantList &arguments) {
    QDBusMessage message = QDBusMessage::createSignal(u"/"_s, interface, name);
    message.setArguments(arguments);
    return message;
}

/// What services say that have gone wrong, of all kinds in turn.
QDBusMessage nonsense(int number, const QStringList &card) {
    switch (number % 12) {
    case 0:
        return signalOf(u"zr.card"_s, u"inserted"_s, {card[0], card[1].toInt(), card[2], card[3]});
    case 1:
        return signalOf(u"zr.card"_s, u"removed"_s, {card[0], card[1].toInt()});
    case 2:
        return signalOf(u"zr.card"_s, u"removed"_s, {u"e1"_s, number});
    case 3:
        return signalOf(u"zr.card"_s, u"inserted"_s,
                        {u"type%1"_s.arg(number), number, u"unix:/nowhere"_s, QString()});
    case 4:
        return signalOf(u"zr.card"_s, u"inserted"_s, {number});
    case 5:
        return signalOf(u"zr.card"_s, u"removed"_s, {QVariantMap{{u"e1"_s, number}}, number});
    case 6:
        return signalOf(u"zr.flash"_s, u"inserted"_s, {u"sd%1"_s.arg(number)});
    case 7:
        return signalOf(u"zr.flash"_s, u"mountFailed"_s, {number});
    case 8:
        return signalOf(u"zr.flash"_s, u"inserted"_s, {QVariantMap{{u"sda1"_s, number}}});
    case 9:
        return signalOf(u"zr.flash"_s, u"removed"_s, {u"sda"_s});
    case 10:
        return signalOf(u"zr.card"_s, u"changed"_s, {number});
    default:
        return signalOf(u"org.example.Stranger"_s, u"changed"_s, {number, u"value"_s});
    }
}

/// Everything that was sent has left when this returns.
void waitUntilSent(const QDBusConnection &bus) {
    bus.interface()->isServiceRegistered(u"zr.nobody"_s);
}

} // namespace

/// Floods the session bus: signals a second, seconds, a card's info file. Prints how many signals it sent in how many
/// milliseconds.
int main(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    QFile info(words.value(3));
    if (!info.open(QIODevice::ReadOnly))
        return 1;
    const QStringList card = QString::fromLatin1(info.readAll()).split(u'\n');
    const QDBusConnection bus = QDBusConnection::sessionBus();
    const int number = words[1].toInt() * words[2].toInt();
    const int batch = static_cast<int>(words[1].toInt() * batchTime / 1s);
    QElapsedTimer clock;
    clock.start();
    for (int sent = 0; sent < number;) {
        for (int i = 0; i < batch; ++i)
            bus.send(nonsense(sent++, card));
        waitUntilSent(bus);
        const std::chrono::nanoseconds due = sent / batch * batchTime;
        const qint64 early = (due - std::chrono::nanoseconds(clock.nsecsElapsed())) / 1us;
        QThread::usleep(static_cast<unsigned long>(std::max<qint64>(0, early)));
    }
    std::cout << number << ' ' << clock.elapsed() << std::endl;
}
