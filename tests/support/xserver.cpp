// SPDX-License-Identifier: GPL-3.0-or-later
#include "xserver.h"

using namespace Qt::Literals::StringLiterals;

XServer::XServer() {
    // In milliseconds: a key is repeated when it is held, not when the program that lets it go has to wait.
    server.start(u"Xvfb"_s, {u"-ardelay"_s, u"3000"_s, u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s,
                             u"800x600x24"_s, u"-nolisten"_s, u"tcp"_s});
    if (server.waitForReadyRead())
        displayName = u':' + QString::fromLatin1(server.readLine().trimmed());
}

XServer::~XServer() {
    server.terminate();
    server.waitForFinished();
}

bool XServer::key(const QStringList &names) const {
    return xdotool(QStringList{u"key"_s} + names);
}

bool XServer::xdotool(const QStringList &words) const {
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DISPLAY"_s, displayName);
    program.setProcessEnvironment(environment);
    program.start(u"xdotool"_s, words);
    return program.waitForFinished() && program.exitCode() == 0;
}
