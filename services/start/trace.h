// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <optional>

/// One frame of a trace as the launcher's crash handler writes it:
/// "[bt]: (NUMBER) MODULE(SYMBOL+OFFSET) [ADDRESS] NAME", or bare, when it had to give up:
/// "MODULE(SYMBOL+OFFSET)[ADDRESS]", where the symbol may be missing.
struct TraceFrame {
    /// 0 for a bare frame.
    int number = 0;
    QString module;

    bool operator==(const TraceFrame &) const = default;
};

/// The frame in a line, or nothing when the line is none.
std::optional<TraceFrame> frameIn(const QByteArray &line);

/// Whether the line is the first one of a trace: the crash handler's own signature.
bool beginsTrace(const QByteArray &line);

/// The library that the launcher says it is about to load, or nothing when the line says something else.
std::optional<QString> announcedLibrary(const QByteArray &line);

/// Whether the launcher says that none of those that it announced is being loaded any more.
bool endsLoading(const QByteArray &line);

/// Picks the last trace out of a stream of bytes. Holds a bounded part of it, whatever comes: no line longer than
/// 4 KiB, no more frames than a crash handler writes.
class TraceReader {
public:
    void read(QByteArrayView bytes);

    /// The lines of the last trace, without line ends.
    QList<QByteArray> lines() const { return traceLines; }
    /// The modules of its frames, the topmost first.
    QStringList modules() const { return traceModules; }
    /// The plug-in that was being loaded, which a trace may not name. Empty when none was.
    QString loadedPlugin() const { return isOfLoading ? announcedPlugin : QString(); }
    /// The plug-in that the launcher has begun to load and not yet passed. Empty when there is none.
    QString unfinishedPlugin() const { return announcedPlugin; }

private:
    void endLine();
    void beginTrace();

    QByteArray currentLine;
    QList<QByteArray> traceLines;
    QStringList traceModules;
    QString announcedPlugin;
    bool isOfLoading = false;
    int lastNumber = 0;
};
