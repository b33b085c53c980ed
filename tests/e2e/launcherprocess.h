// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusInterface>
#include <QProcess>

#include <chrono>
#include <csignal>
#include <memory>

/// The installed launcher as a process, and the probe inside it.
class LauncherProcess {
public:
    static constexpr int longestStartMs = 20'000;
    /// A press that takes longer was held up: by what never ends, or by a bus that lets each attempt wait for a second.
    static constexpr std::chrono::milliseconds longestPress{900};

    LauncherProcess();
    /// Ends the process if it still runs.
    ~LauncherProcess();

    /// What is started; the installed launcher unless set.
    QString program;
    /// Environment for the next start; it begins as that of the test.
    QProcessEnvironment environment;

    /// Starts with `arguments` and waits until the probe answers. False when it does not come up.
    bool start(const QStringList &arguments = {});
    /// Starts and waits for the end; for command lines that do not lead to a run.
    int runToEnd(const QStringList &arguments);
    /// Waits for the end of the process. Its exit status, -1 when a signal ended it.
    int waitForEnd();
    /// Sends it `signal` and waits until it is gone, from the bus as well. Its exit status, -1 when the signal ended it.
    int stop(int signal = SIGTERM);
    /// Presses all that is named, in turn, again and again for a while: how long the slowest answer took.
    std::chrono::milliseconds slowestPress(const QStringList &namesOrTexts, std::chrono::milliseconds period);
    /// Lets the installed simulator do what `words` say, on the bus of `environment`. False when it cannot.
    [[nodiscard]] static bool
    simulate(const QString &words,
             const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());
    /// Takes all simulated cards out.
    [[nodiscard]] static bool removeCards();
    qint64 processId() const { return process.processId(); }
    /// Whether a program that it started still runs.
    bool hasChildren() const;

    /// Loads a library into the launcher before all others.
    void preload(const QString &library);
    /// Gives the launcher a framebuffer of that height.
    void setScreenHeight(int pixels);

    QByteArray output() { return process.readAllStandardOutput(); }
    QByteArray errors();

    bool press(const QString &nameOrText) { return ask<bool>("press", {nameOrText}); }
    bool pressWithKey(const QString &nameOrText) { return ask<bool>("pressWithKey", {nameOrText}); }
    /// For a press that may end the launcher before it answers.
    void pressWithoutAnswer(const QString &nameOrText) {
        probe->call(QDBus::NoBlock, QStringLiteral("press"), nameOrText);
    }
    /// As the display server tells a key of the instrument.
    void pressDeviceKey(Qt::Key key) { probe->call(QStringLiteral("pressDeviceKey"), int(key)); }
    QString caption() { return ask<QString>("caption"); }
    QString shownPage() { return ask<QString>("shownPage"); }
    QString backButtonText() { return ask<QString>("backButtonText"); }
    QStringList selectorTexts() { return ask<QStringList>("selectorTexts"); }
    int selectorCount() { return ask<int>("selectorCount"); }
    int checkedSelector() { return ask<int>("checkedSelector"); }
    bool pressSelector(int index) { return ask<bool>("pressSelector", {index}); }
    QStringList iconTexts() { return ask<QStringList>("iconTexts"); }
    QStringList pageTexts() { return ask<QStringList>("pageTexts"); }
    QStringList leds() { return ask<QStringList>("leds"); }
    void showShortcutWindow() { probe->call(QStringLiteral("showShortcutWindow")); }
    int shortcuts() { return ask<int>("shortcuts"); }
    void closePopup() { probe->call(QStringLiteral("closePopup")); }
    QString shownPopup() { return ask<QString>("shownPopup"); }
    bool isActive() { return ask<bool>("isActive"); }
    QString ground() { return ask<QString>("ground"); }
    QStringList keysHeard() { return ask<QStringList>("keysHeard"); }
    bool hasPicture(const QString &name) { return ask<bool>("hasPicture", {name}); }
    QString message() { return ask<QString>("message"); }
    int progress() { return ask<int>("progress"); }
    QStringList windowSize() { return ask<QStringList>("windowSize"); }
    bool isVisible(const QString &name) { return ask<bool>("isVisible", {name}); }
    QStringList clippedTexts() { return ask<QStringList>("clippedTexts"); }
    bool pressRow(int row) { return ask<bool>("pressRow", {row}); }
    QStringList paintedTexts(const QString &className) {
        return ask<QStringList>("paintedTexts", {className});
    }
    bool isScreenUpToDate() { return ask<bool>("isScreenUpToDate"); }
    bool grab(const QString &file) { return ask<bool>("grab", {file}); }
    QStringList holdings() { return ask<QStringList>("holdings"); }
    void goHome() { probe->call(QStringLiteral("goHome")); }

private:
    template <typename Answer>
    Answer ask(const char *question, const QVariantList &arguments = {}) {
        return probe->callWithArgumentList(QDBus::Block, QString::fromLatin1(question), arguments)
            .arguments()
            .value(0)
            .template value<Answer>();
    }

    QProcess process;
    std::unique_ptr<QDBusInterface> probe;
    QByteArray errorBytes;
};
