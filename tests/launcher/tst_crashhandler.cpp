// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherfixture.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int longestEndMs = 60'000;
constexpr int longestTraceMs = 10'000;
const QByteArray signatureLine = "void crit_err_hdlr(int, siginfo_t*, void*)\n";

struct NamedFrame {
    int number;
    QString library;
    QString function;
};

struct End {
    bool isNormal = false;
    int status = -1;
    QByteArray errors;
};

End runToEnd(const QString &program, const QStringList &arguments = {}, const QString &preload = {}) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!preload.isEmpty()) {
        environment.insert(u"LD_PRELOAD"_s, preload);
        // The sanitizers want to come first themselves.
        environment.insert(u"ASAN_OPTIONS"_s,
                           environment.value(u"ASAN_OPTIONS"_s) + ":verify_asan_link_order=0"_L1);
    }
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished(longestEndMs))
        return {};
    return {process.exitStatus() == QProcess::NormalExit, process.exitCode(), process.readAllStandardError()};
}

QList<NamedFrame> namedFrames(const QByteArray &errors) {
    static const QRegularExpression line(
        uR"(^\[bt\]: \((\d+)\) (\S+)\([^)+]+\+0x[0-9a-f]+\) \[0x[0-9a-f]+\] (.+)$)"_s,
        QRegularExpression::MultilineOption);
    QList<NamedFrame> frames;
    for (const QRegularExpressionMatch &match : line.globalMatch(QString::fromLocal8Bit(errors)))
        frames.append({match.captured(1).toInt(), match.captured(2), match.captured(3)});
    return frames;
}

bool hasFrame(const QList<NamedFrame> &frames, const QString &library, const QString &function) {
    return std::ranges::any_of(frames, [&](const NamedFrame &frame) {
        return frame.library.endsWith(u'/' + library) && frame.function == function;
    });
}

} // namespace

/// Every fault is a real one, in a process of its own.
class CrashHandlerTest : public QObject {
    Q_OBJECT

private slots:
    void traceOfTheLauncherNamesTheFunction_data();
    void traceOfTheLauncherNamesTheFunction();
    void framesWithoutANameLeaveGaps();
    void functionWithoutAMangledNameIsTheNullString();
    void whateverGoesWrongTheStatusIs1_data();
    void whateverGoesWrongTheStatusIs1();
    void firstOfManyThreadsIsTold();
    void handlerThatCannotBeInstalledEndsTheStart();

private:
    End runWithPlugin(const QString &name);

    TestConfig config;
};

End CrashHandlerTest::runWithPlugin(const QString &name) {
    configurePlugins(config, {name});
    return runToEnd(QStringLiteral(LAUNCHER));
}

void CrashHandlerTest::traceOfTheLauncherNamesTheFunction_data() {
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<QString>("library");
    QTest::addColumn<QString>("function");
    const QString fault = u"writeNowhere()"_s;
    QTest::newRow("constructor") << u"faultyconstructor"_s << u"libfaultyconstructor.so"_s << fault;
    QTest::newRow("icon") << u"faultyicon"_s << u"libfaultyicon.so"_s << fault;
    QTest::newRow("click") << u"faultyclick"_s << u"libfaultyclick.so"_s << fault;
    QTest::newRow("thread") << u"faultythread"_s << u"libfaultythread.so"_s << fault;
    QTest::newRow("launcher's own function")
        << u"faultywindow"_s << u"zr-launcher"_s << u"LauncherWindow::showPluginWindow(QWidget*)"_s;
}

void CrashHandlerTest::traceOfTheLauncherNamesTheFunction() {
    QFETCH(QString, plugin);
    QFETCH(QString, library);
    QFETCH(QString, function);
    const End end = runWithPlugin(plugin);
    QVERIFY2(end.isNormal, end.errors);
    QCOMPARE(end.status, 1);
    QCOMPARE(end.errors.count(signatureLine), 1);
    const QList<NamedFrame> frames = namedFrames(end.errors);
    QVERIFY2(hasFrame(frames, library, function), end.errors);
    QVERIFY(end.errors.indexOf(signatureLine) < end.errors.indexOf("[bt]: "));
    QCOMPARE(frames.size(), end.errors.count("[bt]: "));
}

void CrashHandlerTest::framesWithoutANameLeaveGaps() {
    const End end = runWithPlugin(u"faultystripped"_s);
    QCOMPARE(end.status, 1);
    const QList<NamedFrame> frames = namedFrames(end.errors);
    QVERIFY2(!hasFrame(frames, u"libfaultystripped.so"_s, u"writeNowhere()"_s), end.errors);
    const auto caller = std::ranges::find(frames, u"PluginsCollection::load()"_s, &NamedFrame::function);
    QVERIFY2(caller != frames.end(), end.errors);
    // Left out above it are the signal's own frame, the function that faulted and the plug-in's constructor.
    const auto namedAbove = std::distance(frames.begin(), caller);
    QCOMPARE_GE(caller->number - 1 - namedAbove, 3);
    QVERIFY(std::ranges::is_sorted(frames, std::ranges::less(), &NamedFrame::number));
}

void CrashHandlerTest::functionWithoutAMangledNameIsTheNullString() {
    const End end = runToEnd(QStringLiteral(CRASHER), {u"plain"_s});
    QCOMPARE(end.status, 1);
    QVERIFY2(end.errors.contains("/crasher(main+"), end.errors);
    QVERIFY2(hasFrame(namedFrames(end.errors), u"crasher"_s, u"(null)"_s), end.errors);
}

void CrashHandlerTest::whateverGoesWrongTheStatusIs1_data() {
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("way");
    const QString crasher = QStringLiteral(CRASHER);
    QTest::newRow("fault in the trace") << crasher << u"in the trace"_s;
    QTest::newRow("abort in the trace") << crasher << u"abort in the trace"_s;
    QTest::newRow("trace needs a lock that is held") << crasher << u"under a lock"_s;
    QTest::newRow("fault at the exit") << crasher << u"at the exit"_s;
    QTest::newRow("endless exit") << crasher << u"hang at the exit"_s;
    QTest::newRow("allocator's lock is held") << QStringLiteral(MALLOC_FAULT) << QString();
}

void CrashHandlerTest::whateverGoesWrongTheStatusIs1() {
    QFETCH(QString, program);
    QFETCH(QString, way);
    if (program.isEmpty())
        QSKIP("The address sanitizer is the allocator and lets no other one in.");
    QElapsedTimer time;
    time.start();
    const End end = runToEnd(program, {way});
    QVERIFY2(end.isNormal, end.errors);
    QCOMPARE(end.status, 1);
    QCOMPARE_LT(time.elapsed(), longestTraceMs);
    QCOMPARE(end.errors.count(signatureLine), 1);
    // With or without a demangled name behind it.
    QVERIFY2(end.errors.contains("(_Z12writeNowherev+0x"), end.errors);
}

void CrashHandlerTest::firstOfManyThreadsIsTold() {
    const End end = runToEnd(QStringLiteral(CRASHER), {u"many threads"_s});
    QVERIFY2(end.isNormal, end.errors);
    QCOMPARE(end.status, 1);
    QCOMPARE(end.errors.count(signatureLine), 1);
    QCOMPARE(end.errors.count("(_Z12writeNowherev+0x"), 1);
}

void CrashHandlerTest::handlerThatCannotBeInstalledEndsTheStart() {
    const End end = runToEnd(QStringLiteral(LAUNCHER), {}, QStringLiteral(NO_SIGACTION));
    QVERIFY(end.isNormal);
    QCOMPARE(end.status, 1);
    QCOMPARE(end.errors, QByteArray("error setting signal handler for 11 (Segmentation fault)\n"));
}

QTEST_GUILESS_MAIN(CrashHandlerTest)
#include "tst_crashhandler.moc"
