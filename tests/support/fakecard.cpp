// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakecard.h"

#include <arpa/inet.h>
#include <array>
#include <csignal>
#include <cstring>
#include <poll.h>
#include <pty.h>
#include <semaphore>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <termios.h>
#include <unistd.h>

namespace {

QByteArray framed(const QByteArray &lines) {
    return (lines.isEmpty() ? QByteArray() : lines + '\n') + ".\n";
}

void writeAll(int descriptor, const QByteArray &bytes) {
    qsizetype written = 0;
    while (descriptor >= 0 && written < bytes.size()) {
        const ssize_t count =
            ::write(descriptor, bytes.constData() + written, static_cast<size_t>(bytes.size() - written));
        if (count <= 0)
            return;
        written += count;
    }
}

void closeDescriptor(int &descriptor) {
    if (descriptor >= 0)
        ::close(descriptor);
    descriptor = -1;
}

} // namespace

FakeCard::FakeCard(Wire wireKind) : wire(wireKind), workSignal(::eventfd(0, EFD_CLOEXEC)) {
    std::signal(SIGPIPE, SIG_IGN);
    listen(commandLine, QStringLiteral("commands"));
    listen(updateLine, QStringLiteral("updates"));
    thread = std::thread([this] { serve(); });
}

FakeCard::~FakeCard() {
    close();
    inThread([this] { ends = true; });
    thread.join();
    closeDescriptor(workSignal);
}

void FakeCard::inThread(const std::function<void()> &work) const {
    std::binary_semaphore done(0);
    inThreadLater([&] {
        work();
        done.release();
    });
    done.acquire();
}

void FakeCard::inThreadLater(std::function<void()> work) const {
    {
        const std::lock_guard lock(mutex);
        waitingWork.push_back(std::move(work));
    }
    ::eventfd_write(workSignal, 1);
}

void FakeCard::setReply(const QByteArray &command, const QByteArray &lines) {
    setRawReply(command, framed(lines));
}

void FakeCard::setRawReply(const QByteArray &command, const QByteArray &bytes) {
    inThread([&] { replies.insert(command, bytes); });
}

void FakeCard::setUpdateAfter(const QByteArray &command, const QByteArray &bytes) {
    inThread([&] { updatesAfter.insert(command, bytes); });
}

void FakeCard::setUpdateOnRequest(const QByteArray &bytes) {
    inThread([&] { updateOnRequest = bytes; });
}

void FakeCard::setSingleBytes(bool on) {
    inThread([&] { sendsSingleBytes = on; });
}

void FakeCard::hangUpAfterReply() {
    inThread([this] { hangsUp = true; });
}

void FakeCard::hold() {
    inThread([this] { holds = true; });
}

void FakeCard::release() {
    inThread([this] {
        holds = false;
        for (const QByteArray &reply : std::exchange(heldReplies, {}))
            send(reply);
    });
}

void FakeCard::sendUnasked(const QByteArray &bytes) {
    sendOn(commandLine, bytes);
}

void FakeCard::sendUpdate(const QByteArray &bytes) {
    sendOn(updateLine, bytes);
}

/// Waits until the bytes are on the line, unless there are more than fit into it: the reader may be the caller.
void FakeCard::sendOn(Line &line, const QByteArray &bytes) {
    constexpr qsizetype fitsInAnyLine = 2048;
    const auto write = [&line, bytes] { writeAll(line.peer, bytes); };
    if (bytes.size() <= fitsInAnyLine)
        inThread(write);
    else
        inThreadLater(write);
}

void FakeCard::closeUpdates() {
    inThread([this] { closeDescriptor(updateLine.peer); });
}

void FakeCard::close() {
    inThread([this] {
        for (Line *const line : {&commandLine, &updateLine}) {
            closeDescriptor(line->peer);
            closeDescriptor(line->listener);
            closeDescriptor(line->otherEnd);
        }
    });
}

QList<QByteArray> FakeCard::commands() const {
    QList<QByteArray> copy;
    inThread([&] { copy = receivedCommands; });
    return copy;
}

void FakeCard::forgetCommands() {
    inThread([this] { receivedCommands.clear(); });
}

int FakeCard::calls() const {
    int count = 0;
    inThread([&] { count = callCount; });
    return count;
}

void FakeCard::listen(Line &line, const QString &name) {
    if (wire == Serial) {
        openPty(line);
        return;
    }
    if (wire == Unix) {
        const QString path = directory.filePath(name);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, path.toLocal8Bit().constData(), sizeof address.sun_path - 1);
        line.listener = ::socket(AF_UNIX, SOCK_STREAM, 0);
        ::bind(line.listener, reinterpret_cast<const sockaddr *>(&address), sizeof address);
        line.address = QLatin1String("unix:") + path;
    } else {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        line.listener = ::socket(AF_INET, SOCK_STREAM, 0);
        ::bind(line.listener, reinterpret_cast<const sockaddr *>(&address), length);
        ::getsockname(line.listener, reinterpret_cast<sockaddr *>(&address), &length);
        line.address = QStringLiteral("tcp:127.0.0.1:%1").arg(ntohs(address.sin_port));
    }
    ::listen(line.listener, 5);
}

void FakeCard::openPty(Line &line) {
    std::array<char, 64> name{};
    termios settings{};
    ::cfmakeraw(&settings);
    ::openpty(&line.peer, &line.otherEnd, name.data(), &settings, nullptr);
    line.address = QLatin1String("serial:") + QString::fromLatin1(name.data());
}

void FakeCard::serve() {
    // The connection, or a new one when there is none.
    const auto watched = [](const Line &line) {
        return pollfd{line.peer >= 0 ? line.peer : line.listener, POLLIN, 0};
    };
    while (!ends) {
        std::array<pollfd, 3> all{pollfd{workSignal, POLLIN, 0}, watched(commandLine), watched(updateLine)};
        ::poll(all.data(), all.size(), -1);
        if (all[1].revents)
            serve(commandLine);
        if (all[2].revents)
            serve(updateLine);
        if (all[0].revents)
            doWork();
    }
}

void FakeCard::doWork() {
    eventfd_t count = 0;
    ::eventfd_read(workSignal, &count);
    std::vector<std::function<void()>> works;
    {
        const std::lock_guard lock(mutex);
        works.swap(waitingWork);
    }
    for (const std::function<void()> &work : works)
        work();
}

void FakeCard::serve(Line &line) {
    if (line.peer >= 0)
        read(line);
    else
        accept(line);
}

void FakeCard::accept(Line &line) {
    line.peer = ::accept(line.listener, nullptr, nullptr);
    constexpr timeval longestWrite{2, 0};
    ::setsockopt(line.peer, SOL_SOCKET, SO_SNDTIMEO, &longestWrite, sizeof longestWrite);
    line.received.clear();
    if (&line == &commandLine) {
        ++callCount;
        heldReplies.clear();
    }
}

void FakeCard::read(Line &line) {
    std::array<char, 4096> buffer{};
    const ssize_t length = ::read(line.peer, buffer.data(), buffer.size());
    if (length <= 0) {
        closeDescriptor(line.peer);
        return;
    }
    line.received.append(buffer.data(), length);
    if (&line != &commandLine) {
        writeAll(line.peer, updateOnRequest);
        return;
    }
    while (line.received.contains('\n')) {
        const qsizetype lineFeed = line.received.indexOf('\n');
        const QByteArray command = line.received.first(lineFeed);
        line.received.remove(0, lineFeed + 1);
        take(command);
    }
}

void FakeCard::take(const QByteArray &command) {
    receivedCommands.append(command);
    QByteArray reply = replies.value(command, framed({}));
    if (command.startsWith("repeat "))
        reply = framed(command.mid(7));
    if (holds)
        heldReplies.append(reply);
    else
        send(reply);
    writeAll(updateLine.peer, updatesAfter.value(command));
}

void FakeCard::send(const QByteArray &bytes) {
    if (sendsSingleBytes) {
        for (const char byte : bytes)
            writeAll(commandLine.peer, QByteArray(1, byte));
    } else {
        writeAll(commandLine.peer, bytes);
    }
    if (std::exchange(hangsUp, false))
        closeDescriptor(commandLine.peer);
}
