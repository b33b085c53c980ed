// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QTemporaryDir>

/// A home with a configuration and as many plug-ins as wanted, ten a page, each a library file of its own: for the
/// launcher `libtileN.so`, for the floor `libbareN.so`. Besides, both load the watcher of their first frame.
class BenchmarkHome {
public:
    static constexpr int iconsPerPage = 10;

    explicit BenchmarkHome(int plugins);

    QString path() const { return home.path(); }

    /// The caller's, on the offscreen platform, with this home's configuration.
    QProcessEnvironment environment() const;

    /// The same on every machine: nothing of the caller's, no session bus, one type family.
    QProcessEnvironment fixedEnvironment() const;

private:
    QString pluginGroup(int number, int cell) const;
    void writeConfiguration(int plugins) const;
    void writeFontConfiguration() const;

    QTemporaryDir home;
};
