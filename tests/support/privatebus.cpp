// SPDX-License-Identifier: GPL-3.0-or-later
#include "privatebus.h"

#include <QByteArrayList>
#include <QFile>

#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace {

/// Starts a program; what it prints can be read from `output`. Without QProcess, which the thread sanitizer does not bear.
pid_t spawn(QByteArrayList words, QFile &output) {
    QList<char *> arguments;
    for (QByteArray &word : words)
        arguments.append(word.data());
    arguments.append(nullptr);
    int pipe[2];
    if (::pipe2(pipe, O_CLOEXEC) != 0)
        return 0;
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, pipe[1], STDOUT_FILENO);
    // Left behind by a test that crashed, it would keep the test's own open.
    ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t process = 0;
    const int error = ::posix_spawnp(&process, arguments[0], &actions, nullptr, arguments.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    ::close(pipe[1]);
    output.open(pipe[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    return error == 0 ? process : 0;
}

} // namespace

PrivateBus::PrivateBus(const QString &socket) {
    start(socket.isEmpty() ? QString() : QStringLiteral("unix:path=") + socket);
}

void PrivateBus::end() {
    send(SIGTERM);
    // A suspended one would not hear it.
    resume();
    waitUntilEnded();
}

void PrivateBus::kill() {
    send(SIGKILL);
    waitUntilEnded();
}

void PrivateBus::suspend() {
    send(SIGSTOP);
}

void PrivateBus::resume() {
    send(SIGCONT);
}

bool PrivateBus::restart() {
    // Without the identity of the bus that was there.
    return start(busAddress.section(u',', 0, 0));
}

bool PrivateBus::start(const QString &address) {
    QByteArrayList words{"dbus-daemon", "--session", "--nofork", "--print-address"};
    if (!address.isEmpty())
        words.append("--address=" + address.toLocal8Bit());
    QFile output;
    daemon = spawn(words, output);
    // The identity changes with each start.
    const QString printed = QString::fromLatin1(output.readLine().trimmed());
    if (printed.isEmpty())
        return false;
    busAddress = address.isEmpty() ? printed : address;
    return true;
}

void PrivateBus::send(int signal) const {
    if (daemon)
        ::kill(daemon, signal);
}

void PrivateBus::waitUntilEnded() {
    if (daemon)
        ::waitpid(std::exchange(daemon, 0), nullptr, 0);
}
