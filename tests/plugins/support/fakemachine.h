// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filetree.h"
#include "systemreader.h"

/// A machine that is made of files: what its kernel tells is set by the test.
class FakeMachine {
public:
    FakeMachine() {
        using namespace Qt::Literals::StringLiterals;
        set(u"cpuinfo"_s, "model name : Test Processor\n");
        set(u"meminfo"_s, "MemTotal: 1000000 kB\nMemAvailable: 750000 kB\n");
        set(u"uptime"_s, "93784.5 1.0\n");
        set(u"mounts"_s, "/dev/root / ext4 rw 0 0\n");
        setCpu(100, 900);
    }

    /// What a file of the process file system holds.
    void set(const QString &name, const QByteArray &text) const { tree.write(name, text); }
    void setCpu(int busy, int idle) const {
        set(QStringLiteral("stat"), "cpu " + QByteArray::number(busy) + " 0 0 " + QByteArray::number(idle));
    }

    SystemSources sources() const { return {tree.path(), QStringLiteral("/"), QStringLiteral("/")}; }
    std::shared_ptr<SystemReader> reader() const {
        return std::make_shared<SystemReader>(sources(), QStringLiteral("launcher 1"));
    }

private:
    FileTree tree;
};
