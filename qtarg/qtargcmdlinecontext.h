// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// The words of a command line that are still to be read, without the program's name.
class QtArgCmdLineContext {
public:
    QtArgCmdLineContext() = default;
    explicit QtArgCmdLineContext(const QStringList &words);

    bool atEnd() const { return firstWord == words.size(); }
    /// Takes the first word; `m_null` when there is none.
    QString next();
    /// Puts a word back in front.
    void prepend(const QString &word);

    /// Stands for the absence of a word.
    static const QString m_null;

private:
    QStringList words;
    qsizetype firstWord = 0;
};
