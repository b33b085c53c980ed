// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>

/// What is known about a plug-in that was left out because it made the launcher crash.
class LeftOutNote {
    Q_DECLARE_TR_FUNCTIONS(LeftOutNote)

public:
    /// Reads the note that the start program left for the Notice of that number. Without one, or when it is damaged,
    /// the note is empty.
    static LeftOutNote read(int number);
    /// Reads what is in the file of a note.
    static LeftOutNote from(const QByteArray &bytes);

    /// The plug-in's name in the configuration; empty when nothing is known.
    QString plugin() const { return pluginName; }
    QString trace() const { return traceText; }
    /// Which plug-in was left out.
    QString headline() const;
    /// Why, and until when.
    QString reason() const;
    /// All of it, to be saved.
    QString report() const;

private:
    QString pluginName;
    QString library;
    int crashes = 0;
    QString traceText;
};
