// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardcommand.h"

#include "cards/cardcontrol.h"
#include "cards/cardplace.h"
#include "cards/cardprocess.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QFile>

#include <array>
#include <fcntl.h>
#include <iostream>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

enum ExitStatus { Done = 0, Failed = 1, Misused = 2 };

int fail(const QString &message) {
    std::cerr << "zr-simulator: " << qPrintable(message) << std::endl;
    return Failed;
}

int misuse() {
    std::cerr << qPrintable(cardCommandHelp());
    return Misused;
}

std::optional<CardOrder> cardOrder(const QStringList &words) {
    const std::optional<CardType> type = cardType(words.value(0));
    bool isNumber = false;
    CardOrder order{.type = type.value_or(CardType()), .serial = words.value(1).toInt(&isNumber)};
    if (!type || !isNumber)
        return std::nullopt;
    for (const QString &option : words.mid(2)) {
        if (option == "--dual"_L1 && !type->signallingAlarms.isEmpty())
            order.isDualMode = true;
        else if (option == "--tcp"_L1)
            order.wire = CardOrder::Tcp;
        else if (option == "--serial"_L1)
            order.wire = CardOrder::Serial;
        else
            return std::nullopt;
    }
    return order;
}

/// An instrument that is switched off has no cards: ends the program when the bus does.
void endWithTheBus() {
    QDBusConnection::sessionBus().connect(QString(), u"/org/freedesktop/DBus/Local"_s,
                                          u"org.freedesktop.DBus.Local"_s, u"Disconnected"_s,
                                          QCoreApplication::instance(), SLOT(quit()));
}

void closeStandardStreams() {
    const int nowhere = ::open("/dev/null", O_RDWR);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        ::dup2(nowhere, stream);
    ::close(nowhere);
}

/// The card itself. Tells through `report` what went wrong, or closes it without a word when the card is announced.
int beCard(const CardOrder &order, int report, int argc, char *argv[]) {
    ::setsid();
    const QCoreApplication application(argc, argv);
    CardProcess process(order);
    CardControl control(&process, CardPlace::controlSocket(order.cardName()));
    QString error =
        control.listen() ? process.insert() : u"cannot listen in %1"_s.arg(CardPlace::directory());
    if (!error.isEmpty()) {
        process.remove();
        const QByteArray text = error.toLocal8Bit();
        static_cast<void>(::write(report, text.constData(), static_cast<size_t>(text.size())) + 1);
        return Failed;
    }
    closeStandardStreams();
    ::close(report);
    endWithTheBus();
    return QCoreApplication::exec();
}

QString readToEnd(int pipe) {
    QByteArray text;
    std::array<char, 512> buffer{};
    ssize_t length = 0;
    while ((length = ::read(pipe, buffer.data(), buffer.size())) > 0)
        text.append(buffer.data(), length);
    return QString::fromLocal8Bit(text);
}

int insertCard(const QStringList &words, int argc, char *argv[]) {
    const std::optional<CardOrder> order = cardOrder(words);
    if (!order)
        return misuse();
    if (CardControl::order(order->cardName(), {u"commands"_s}))
        return fail(u"%1 is inserted already"_s.arg(order->cardName()));
    std::array<int, 2> report{};
    if (::pipe(report.data()) != 0)
        return fail(u"no pipe"_s);
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(report[0]);
        return beCard(*order, report[1], argc, argv);
    }
    ::close(report[1]);
    const QString error = readToEnd(report[0]);
    return error.isEmpty() && child > 0 ? Done : fail(error);
}

int listCards() {
    for (const QString &card : CardPlace::cards())
        std::cout << qPrintable(card) << '\n';
    return Done;
}

int orderCard(const QString &card, const QStringList &words) {
    const std::optional<QString> answer = CardControl::order(card, words);
    if (!answer)
        return fail(u"there is no card %1"_s.arg(card));
    if (answer->startsWith("error "_L1))
        return fail(answer->mid(6));
    if (!answer->isEmpty())
        std::cout << qPrintable(*answer) << '\n';
    return Done;
}

} // namespace

QString cardCommandHelp() {
    return uR"(zr-simulator card: measurement cards on a desk. CARD is type and number, for instance e1-1234.

  insert TYPE NUMBER [--dual] [--tcp | --serial]
                             a card of type e1, da, otdr or gbe; --dual: an e1 card that analyses signalling too
  remove CARD
  list
  alarm CARD NAME present | none
  clear CARD                 forgets which alarms were present
  live CARD [off]            alarms come and go by themselves
  mode CARD pcm | sa         switches the card from inside
  commands CARD              what it was told so far

  hang CARD                  neither answers nor updates; resume CARD answers late
  close CARD                 hangs up and takes no calls; open CARD takes them again
  babble CARD [off]          noise on both lines
  storm CARD NUMBER          that many updates a second, up to 1000; 0 ends it
  reply CARD whole | bytes | cut | endless
                             how replies are sent: whole, in single bytes, cut off, without end
)"_s;
}

int runCardCommand(const QStringList &words, int argc, char *argv[]) {
    const QString verb = words.value(0);
    const QStringList rest = words.mid(1);
    if (verb == "insert"_L1)
        return insertCard(rest, argc, argv);
    if (verb == "list"_L1)
        return listCards();
    if (rest.isEmpty())
        return misuse();
    return orderCard(rest.first(), QStringList{verb} + rest.mid(1));
}
