// SPDX-License-Identifier: GPL-3.0-or-later
#include "commandchannel.h"

#include "fakecard.h"

#include <QElapsedTimer>
#include <QTest>

#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Seconds of processor time that this process has used.
double processorTime() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
           double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

} // namespace

/// What comes after a card was left alone for its time.
class CommandChannelTest : public QObject {
    Q_OBJECT

private slots:
    void replyThatComesAfterTheLineWasOpenedAnewIsDropped_data();
    void replyThatComesAfterTheLineWasOpenedAnewIsDropped();
    void cardThatIsNotThereIsTriedAgain();
    void cardIsFoundByTheNameOfItsHost();
    void listenerThatAcceptsNobodyCostsATimeLimitAndNoProcessor();
};

void CommandChannelTest::replyThatComesAfterTheLineWasOpenedAnewIsDropped_data() {
    QTest::addColumn<int>("wire");
    QTest::addColumn<bool>("repeatsANumber");
    QTest::newRow("Unix-domain socket") << int(FakeCard::Unix) << false;
    QTest::newRow("TCP") << int(FakeCard::Tcp) << false;
    QTest::newRow("serial line") << int(FakeCard::Serial) << true;
}

void CommandChannelTest::replyThatComesAfterTheLineWasOpenedAnewIsDropped() {
    QFETCH(int, wire);
    FakeCard card{FakeCard::Wire(wire)};
    card.setReply("versions", "1");
    card.setReply("options", "right");
    CommandChannel channel(card.cardiface());
    channel.setTimeLimit(100ms);
    channel.setLeaveAloneTime(0ms);
    card.hold();
    QCOMPARE(channel.send(u"versions"_s).kind, CommandChannel::Outcome::Failed);
    // Its time is over; the card answers everything while the next commands wait.
    channel.setTimeLimit(2000ms);
    std::thread releasing([&card] {
        while (card.commands().isEmpty() || card.commands().constLast() == "versions")
            QThread::yieldCurrentThread();
        card.release();
    });
    const CommandChannel::Outcome outcome = channel.send(u"options"_s);
    releasing.join();
    QCOMPARE(outcome.kind, CommandChannel::Outcome::Answered);
    QCOMPARE(outcome.text, u"right"_s);
    const QList<QByteArray> commands = card.commands();
    const bool repeated = std::any_of(commands.cbegin(), commands.cend(), [](const QByteArray &command) {
        return command.startsWith("repeat ");
    });
    QTEST(repeated, "repeatsANumber");
}

void CommandChannelTest::cardThatIsNotThereIsTriedAgain() {
    FakeCard card;
    card.setReply("options", "G703");
    const QString address = card.cardiface();
    CommandChannel nowhere(u"unix:/nowhere/at/all"_s);
    QCOMPARE(nowhere.send(u"options"_s).kind, CommandChannel::Outcome::Failed);
    QCOMPARE(nowhere.send(u"options"_s).kind, CommandChannel::Outcome::Failed);
    QCOMPARE(CommandChannel(address).send(u"options"_s).text, u"G703"_s);
}

void CommandChannelTest::cardIsFoundByTheNameOfItsHost() {
    FakeCard card(FakeCard::Tcp);
    card.setReply("options", "G703");
    CommandChannel channel(card.cardiface().replace(u"127.0.0.1"_s, u"localhost"_s));
    QCOMPARE(channel.send(u"options"_s).text, u"G703"_s);
}

void CommandChannelTest::listenerThatAcceptsNobodyCostsATimeLimitAndNoProcessor() {
    const QTemporaryDir directory;
    const QByteArray path = directory.filePath(u"full"_s).toLocal8Bit();
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
    const int listener = ::socket(AF_UNIX, SOCK_STREAM, 0);
    QCOMPARE(::bind(listener, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    QCOMPARE(::listen(listener, 0), 0);
    const int waiting = ::socket(AF_UNIX, SOCK_STREAM, 0);
    QCOMPARE(::connect(waiting, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);

    CommandChannel channel("unix:"_L1 + QString::fromLocal8Bit(path));
    channel.setTimeLimit(1000ms);
    QElapsedTimer timer;
    timer.start();
    const double before = processorTime();
    QCOMPARE(channel.send(u"options"_s).kind, CommandChannel::Outcome::Failed);
    QCOMPARE(channel.send(u"options"_s).kind, CommandChannel::Outcome::LeftAlone);
    QVERIFY(timer.elapsed() >= 1000);
    QVERIFY2(processorTime() - before < 0.5, qPrintable(QString::number(processorTime() - before)));
    ::close(waiting);
    ::close(listener);
}

QTEST_GUILESS_MAIN(CommandChannelTest)
#include "tst_commandchannel.moc"
