// SPDX-License-Identifier: GPL-3.0-or-later
#include "trace.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype longestLine = 4096;
// The crash handler asks for 50 frames.
constexpr qsizetype mostLines = 64;
constexpr QByteArrayView loadingFunction = "PluginsCollection::initPlugin";

} // namespace

std::optional<TraceFrame> frameIn(const QByteArray &line) {
    static const QRegularExpression pattern(
        uR"(^\[bt\]: \((\d{1,6})\) ([^(]+)\([^)^+]+\+[^)]+\)\s\[[^]]+\])"_s);
    static const QRegularExpression barePattern(uR"(^()(/[^(]+)\([^)]*\)\[0x[0-9a-f]+\]$)"_s);
    const bool isNumbered = line.startsWith("[bt]: (");
    if (!isNumbered && !line.startsWith('/'))
        return std::nullopt;
    const QRegularExpressionMatch match =
        (isNumbered ? pattern : barePattern).match(QString::fromLocal8Bit(line));
    if (!match.hasMatch())
        return std::nullopt;
    return TraceFrame{match.captured(1).toInt(), match.captured(2)};
}

bool beginsTrace(const QByteArray &line) {
    return line.contains("void crit_err_hdlr(int, siginfo_t*, void*)") && !line.startsWith("[bt]: ");
}

std::optional<QString> announcedLibrary(const QByteArray &line) {
    for (const QByteArrayView start : {"initPlugin : loading plugin ", "initPlugin2 : loading plugin "}) {
        if (line.startsWith(start))
            return QString::fromLocal8Bit(line.sliced(start.size()));
    }
    return std::nullopt;
}

bool endsLoading(const QByteArray &line) {
    return line == "all plugins loaded";
}

void TraceReader::read(QByteArrayView bytes) {
    while (!bytes.isEmpty()) {
        const qsizetype end = bytes.indexOf('\n');
        const QByteArrayView part = end < 0 ? bytes : bytes.first(end);
        // What is longer cannot be a frame; its beginning is enough to see that.
        currentLine += part.first(qMin(part.size(), longestLine - currentLine.size()));
        if (end < 0)
            return;
        endLine();
        bytes = bytes.sliced(end + 1);
    }
}

void TraceReader::endLine() {
    if (beginsTrace(currentLine)) {
        beginTrace();
        traceLines.append(currentLine);
    } else if (const std::optional<TraceFrame> frame = frameIn(currentLine)) {
        // The signature is a debug line, which may be switched off; then the numbers start anew. Bare frames have
        // none.
        if (frame->number != 0 && frame->number <= lastNumber)
            beginTrace();
        lastNumber = frame->number;
        isOfLoading = isOfLoading || currentLine.contains(loadingFunction);
        if (traceLines.size() < mostLines) {
            traceLines.append(currentLine);
            traceModules.append(frame->module);
        }
    } else if (const std::optional<QString> library = announcedLibrary(currentLine)) {
        announcedPlugin = *library;
    } else if (endsLoading(currentLine)) {
        announcedPlugin.clear();
    }
    currentLine.clear();
}

void TraceReader::beginTrace() {
    traceLines.clear();
    traceModules.clear();
    isOfLoading = false;
    lastNumber = 0;
}
