// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariant>

/// The launcher's configuration store of this test, emptied when made.
class TestConfig {
public:
    TestConfig();

    void set(const QString &key, const QVariant &value);
    /// What is on the disk by now, also by another process.
    static QString stored(const QString &key);

    /// Where libraries are looked up.
    void setPath(const QString &directory);
    /// The plug-in groups of a collection, separated by blanks.
    void setCollection(const QString &name, const QString &groups);
    void setPersistent(const QString &names);

    struct Plugin {
        unsigned int version = 2;
        unsigned int row = 1;
        unsigned int column = 1;
        QString file = {};
        QString settings = {};
    };
    void addPlugin(const QString &group, const Plugin &plugin);
};
