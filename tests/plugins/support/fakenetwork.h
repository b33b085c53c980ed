// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filetree.h"

/// A directory like /sys/class/net, whose interfaces are plugged and unplugged by the test.
class FakeNetwork {
public:
    QString path() const { return tree.path(); }

    void plug(const QString &name, int number, const QByteArray &operstate = "up",
              const QByteArray &flags = "0x1003") const {
        set(name, QStringLiteral("ifindex"), QByteArray::number(number));
        set(name, QStringLiteral("operstate"), operstate);
        set(name, QStringLiteral("flags"), flags);
        setTraffic(name, 0, 0);
    }
    void unplug(const QString &name) const { QDir(tree.path(name)).removeRecursively(); }
    void setTraffic(const QString &name, quint64 received, quint64 sent) const {
        set(name, QStringLiteral("statistics/rx_bytes"), QByteArray::number(received));
        set(name, QStringLiteral("statistics/tx_bytes"), QByteArray::number(sent));
    }
    void set(const QString &name, const QString &file, const QByteArray &word) const {
        tree.write(name + u'/' + file, word + '\n');
    }

private:
    FileTree tree;
};
