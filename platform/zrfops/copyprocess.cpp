// SPDX-License-Identifier: GPL-3.0-or-later
#include "copyprocess.h"

#include <QTimer>

#include <csignal>
#include <iostream>
#include <sys/prctl.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int mostMessages = 20;
constexpr auto timeToEnd = 2s;
constexpr int timeToDie = 500;

} // namespace

CopyProcess::CopyProcess(const CopyCommands::Command &command) {
    setProgram(command.program);
    setArguments(command.arguments);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // Its lines are read.
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    setProcessEnvironment(environment);
    setStandardInputFile(nullDevice());
    setChildProcessModifier([] {
        ::setpgid(0, 0);
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    });
    connect(this, &QProcess::readyReadStandardError, this, &CopyProcess::passMessagesOn);
    connect(this, &QProcess::finished, this, &CopyProcess::tellHowManyWereCut);
}

QList<QByteArray> CopyProcess::takeLines() {
    // rsync sends the carriage return before its lines, not behind them.
    return outputLines.add(readAllStandardOutput()) << outputLines.unfinished();
}

void CopyProcess::passMessagesOn() {
    for (const QByteArray &line : messageLines.add(readAllStandardError())) {
        if (message.isEmpty())
            message = QString::fromUtf8(line);
        if (++messageCount <= mostMessages)
            std::cerr << line.constData() << std::endl;
    }
}

void CopyProcess::tellHowManyWereCut() {
    passMessagesOn();
    if (messageCount > mostMessages)
        std::cerr << qPrintable(program()) << ": " << messageCount - mostMessages
                  << " more lines of this kind" << std::endl;
}

void CopyProcess::signalGroup(int signal) const {
    const auto leader = static_cast<pid_t>(processId());
    // Its group is made just after it is.
    if (leader > 0 && ::kill(-leader, signal) != 0)
        ::kill(leader, signal);
}

void CopyProcess::abandon() {
    if (state() == NotRunning) {
        deleteLater();
        return;
    }
    connect(this, &QProcess::finished, this, &QObject::deleteLater);
    connect(this, &QProcess::errorOccurred, this, &QObject::deleteLater);
    signalGroup(SIGTERM);
    QTimer::singleShot(timeToEnd, this, [this] { signalGroup(SIGKILL); });
}

bool CopyProcess::endAndWait() {
    if (state() == NotRunning)
        return true;
    signalGroup(SIGTERM);
    if (waitForFinished(std::chrono::milliseconds(timeToEnd).count()))
        return true;
    signalGroup(SIGKILL);
    return waitForFinished(timeToDie);
}
