// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

/// Waits for the first painted frame of this process, prints one line and ends the process at once:
///
///     microseconds since ZR_BENCH_START_NS, resident kB, proportional kB
///
/// ZR_BENCH_START_NS is the monotonic clock in nanoseconds when the process was started; memory is what
/// /proc/self/smaps_rollup says. With ZR_BENCH_CONTENTS set, a line for each widget of this process follows: "shown" or
/// "hidden", and what Qt's classes it and those around it are, from the outermost on; and one for each library: "opened"
/// and its file.
class FirstFrame : public QObject {
    Q_OBJECT

public:
    explicit FirstFrame(QObject *parent = nullptr);

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void report();
};
