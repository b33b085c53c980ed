// SPDX-License-Identifier: GPL-3.0-or-later
#include "silentbus.h"

#include <QLocalSocket>

#include <chrono>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds longestSilence = 1s;

void callBus(QLocalSocket &line, const QString &address) {
    if (!address.startsWith("unix:"_L1))
        return;
    for (const QString &pair : address.section(u':', 1).split(u',')) {
        const QString name =
            QString::fromUtf8(QByteArray::fromPercentEncoding(pair.section(u'=', 1).toUtf8()));
        const bool isAbstract = pair.startsWith("abstract="_L1);
        if (!isAbstract && !pair.startsWith("path="_L1))
            continue;
        if (isAbstract)
            line.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
        line.connectToServer(name);
        return;
    }
}

} // namespace

bool isSilentBus(const QString &address) {
    QLocalSocket line;
    callBus(line, address.section(u';', 0, 0));
    if (!line.waitForConnected(static_cast<int>(longestSilence.count())))
        return false;
    // Any bus answers that with the ways in which one may say who one is.
    line.write("\0AUTH\r\n", 7);
    return !line.waitForReadyRead(static_cast<int>(longestSilence.count())) &&
           line.state() == QLocalSocket::ConnectedState;
}
