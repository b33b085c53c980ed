// SPDX-License-Identifier: GPL-3.0-or-later
#include "qtargcmdlinecontext.h"

#include <utility>

const QString QtArgCmdLineContext::m_null;

QtArgCmdLineContext::QtArgCmdLineContext(const QStringList &words) : words(words) {}

QString QtArgCmdLineContext::next() {
    if (atEnd())
        return m_null;
    return std::move(words[firstWord++]);
}

void QtArgCmdLineContext::prepend(const QString &word) {
    // A word that was taken has left its place free.
    if (firstWord > 0)
        words[--firstWord] = word;
    else
        words.prepend(word);
}
