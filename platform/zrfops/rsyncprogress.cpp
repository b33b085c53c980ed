// SPDX-License-Identifier: GPL-3.0-or-later
#include "rsyncprogress.h"

#include <QRegularExpression>
#include <QString>

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int mostEntries = std::numeric_limits<int>::max() / RsyncProgress::countsPerEntry;
constexpr int wholeFile = 100;

int number(const QRegularExpressionMatch &match, int capture) {
    bool isNumber = false;
    const int value = match.capturedView(capture).toInt(&isNumber);
    return isNumber ? value : -1;
}

} // namespace

bool RsyncProgress::read(const QByteArray &line) {
    // "7 files to consider"
    static const QRegularExpression size(u"^(\\d+) files? to consider$"_s);
    // "  314,572,800 100%  133.45MB/s    0:00:02 (xfr#4, to-chk=0/7)", the bracket at the end of a file only
    static const QRegularExpression state(
        u"^\\s*[\\d,.]+\\s+(\\d+)%\\s+\\S+\\s+[\\d:?]+\\s*(?:\\(xfr#\\d+, \\w+-chk=(\\d+)/(\\d+)\\))?\\s*$"_s);

    const QString text = QString::fromLatin1(line);
    if (const QRegularExpressionMatch match = size.match(text); match.hasMatch())
        return setEntries(number(match, 1), number(match, 1));
    const QRegularExpressionMatch match = state.match(text);
    if (!match.hasMatch())
        return false;
    if (match.hasCaptured(2))
        return setEntries(number(match, 2), number(match, 3));
    return setPercentOfFile(number(match, 1));
}

bool RsyncProgress::setEntries(int left, int total) {
    if (left < 0 || left > total || total > mostEntries)
        return false;
    leftCount = left * countsPerEntry;
    totalCount = total * countsPerEntry;
    leftBeforeFile = leftCount;
    return true;
}

bool RsyncProgress::setPercentOfFile(int percent) {
    if (percent < 0 || percent > wholeFile || leftBeforeFile == 0)
        return false;
    leftCount = leftBeforeFile - percent * countsPerEntry / wholeFile;
    return true;
}
