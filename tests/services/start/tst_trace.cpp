// SPDX-License-Identifier: GPL-3.0-or-later
#include "trace.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray signature = "void crit_err_hdlr(int, siginfo_t*, void*)";

QByteArray frame(int number, const QByteArray &module) {
    return "[bt]: (" + QByteArray::number(number) + ") " + module + "(_Z3fooi+0x1f) [0x7f00] foo(int)";
}

} // namespace

class TraceTest : public QObject {
    Q_OBJECT

private slots:
    void frameIsRecognised_data();
    void frameIsRecognised();
    void lastTraceIsKept();
    void otherLinesDoNotDisturb();
    void traceWithoutSignatureBeginsWhereTheNumbersDo();
    void bareFramesMakeATrace();
    void pluginBeingLoadedIsKnown_data();
    void pluginBeingLoadedIsKnown();
    void unfinishedPluginIsKnownWithoutATrace_data();
    void unfinishedPluginIsKnownWithoutATrace();
    void brokenUpLinesAreJoined();
    void endlessLineIsForgotten();
    void floodOfFramesIsBounded();
};

void TraceTest::frameIsRecognised_data() {
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("module");
    QTest::newRow("frame") << frame(3, "/opt/libclock.so") << u"/opt/libclock.so"_s;
    QTest::newRow("blank in the path") << frame(3, "/opt/my plug-ins/a.so") << u"/opt/my plug-ins/a.so"_s;
    QTest::newRow("name that cannot be demangled")
        << QByteArray("[bt]: (1) a.so(main+0x2) [0x1] (null)") << u"a.so"_s;
    QTest::newRow("bare") << QByteArray("/opt/a.so(_Z3fooi+0x1f)[0x7f00]") << u"/opt/a.so"_s;
    QTest::newRow("bare, no symbol") << QByteArray("/opt/a.so(+0x1f)[0x7f00]") << u"/opt/a.so"_s;
    QTest::newRow("bare, something behind it") << QByteArray("/opt/a.so(+0x1f)[0x7f00] is bad") << QString();
    QTest::newRow("path and no more") << QByteArray("/opt/a.so") << QString();
    QTest::newRow("no symbol") << QByteArray("[bt]: (1) a.so(+0x2) [0x1]") << QString();
    QTest::newRow("no number") << QByteArray("[bt]: () a.so(main+0x2) [0x1] main") << QString();
    QTest::newRow("huge number") << QByteArray("[bt]: (99999999999) a.so(f+0x2) [0x1] f") << QString();
    QTest::newRow("said by somebody") << "he said " + frame(1, "a.so") << QString();
    QTest::newRow("signature") << signature << QString();
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("not UTF-8") << QByteArray("[bt]: (1) \xff\xfe") << QString();
}

void TraceTest::frameIsRecognised() {
    QFETCH(const QByteArray, line);
    QFETCH(const QString, module);
    const std::optional<TraceFrame> found = frameIn(line);
    QCOMPARE(found ? found->module : QString(), module);
}

void TraceTest::lastTraceIsKept() {
    TraceReader reader;
    reader.read(signature + '\n' + frame(1, "first.so") + '\n' + frame(2, "second.so") + '\n');
    reader.read(signature + '\n' + frame(1, "third.so") + '\n' + frame(4, "fourth.so") + '\n');
    QCOMPARE(reader.modules(), QStringList({u"third.so"_s, u"fourth.so"_s}));
    QCOMPARE(reader.lines(), QList<QByteArray>({signature, frame(1, "third.so"), frame(4, "fourth.so")}));
}

void TraceTest::otherLinesDoNotDisturb() {
    TraceReader reader;
    reader.read("hello\n" + frame(1, "a.so") + "\nhello again\n\n" + frame(2, "b.so") + "\nbye\n");
    QCOMPARE(reader.modules(), QStringList({u"a.so"_s, u"b.so"_s}));
    QCOMPARE(reader.lines().size(), 2);
}

void TraceTest::traceWithoutSignatureBeginsWhereTheNumbersDo() {
    TraceReader reader;
    for (const char *const module : {"a.so", "b.so"})
        reader.read(frame(1, module) + '\n' + frame(2, "launcher") + '\n');
    QCOMPARE(reader.modules(), QStringList({u"b.so"_s, u"launcher"_s}));
}

void TraceTest::bareFramesMakeATrace() {
    TraceReader reader;
    for (const char *const module : {"/a.so", "/b.so"})
        reader.read(signature + '\n' + module + "(+0x1f)[0x7f00]\n/bin/launcher(main+0x2)[0x1]\n");
    QCOMPARE(reader.modules(), QStringList({u"/b.so"_s, u"/bin/launcher"_s}));
    QCOMPARE(reader.lines().size(), 3);
}

void TraceTest::pluginBeingLoadedIsKnown_data() {
    QTest::addColumn<QByteArray>("errors");
    QTest::addColumn<QString>("plugin");
    const QByteArray loads =
        "initPlugin2 : loading plugin /opt/liba.so\ninitPlugin2 : loading plugin /opt/lib b.so\n";
    const QByteArray function = "_ZN17PluginsCollection11initPlugin2ERK7QStringii+0x13c) [0x1] "
                                "PluginsCollection::initPlugin2(QString const&)\n";
    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("loading") << loads + "[bt]: (4) zr-launcher(" + function << u"/opt/lib b.so"_s;
    QTest::newRow("loading, older kind")
        << "initPlugin : loading plugin /opt/liba.so\n[bt]: (4) "
           "zr-launcher(_ZN17PluginsCollection10initPluginERK7QStringii+0x1) [0x1] PluginsCollection::initPlugin(QString const&)\n"_ba
        << u"/opt/liba.so"_s;
    QTest::newRow("afterwards") << loads + frame(2, "zr-launcher") + '\n' << QString();
    QTest::newRow("no trace") << loads << QString();
    QTest::newRow("an earlier trace")
        << loads + "[bt]: (4) zr-launcher(" + function + frame(1, "zr-launcher") + '\n'
        << QString();
}

void TraceTest::pluginBeingLoadedIsKnown() {
    QFETCH(const QByteArray, errors);
    QFETCH(const QString, plugin);
    TraceReader reader;
    reader.read(errors);
    QCOMPARE(reader.loadedPlugin(), plugin);
}

void TraceTest::unfinishedPluginIsKnownWithoutATrace_data() {
    QTest::addColumn<QByteArray>("errors");
    QTest::addColumn<QString>("plugin");
    const QByteArray loads =
        "initPlugin2 : loading plugin /opt/liba.so\ninitPlugin2 : loading plugin /opt/libb.so\n";
    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("loading") << loads << u"/opt/libb.so"_s;
    QTest::newRow("all loaded") << loads + "all plugins loaded\n" << QString();
    QTest::newRow("a card's after the instrument's")
        << loads + "all plugins loaded\ninitPlugin2 : loading plugin /opt/libc.so\n"
        << u"/opt/libc.so"_s;
    QTest::newRow("words of another line") << loads + "not all plugins loaded\n" << u"/opt/libb.so"_s;
}

void TraceTest::unfinishedPluginIsKnownWithoutATrace() {
    QFETCH(const QByteArray, errors);
    QFETCH(const QString, plugin);
    TraceReader reader;
    reader.read(errors);
    QCOMPARE(reader.unfinishedPlugin(), plugin);
}

void TraceTest::brokenUpLinesAreJoined() {
    TraceReader reader;
    for (const char character : frame(1, "a.so") + '\n')
        reader.read(QByteArray(1, character));
    QCOMPARE(reader.modules(), QStringList({u"a.so"_s}));
}

void TraceTest::endlessLineIsForgotten() {
    TraceReader reader;
    reader.read(frame(1, "a.so") + '\n' + frame(2, "b.so"));
    for (int number = 0; number < 1000; ++number)
        reader.read(QByteArray(64 * 1024, 'x'));
    reader.read("\n");
    for (const QByteArray &line : reader.lines())
        QVERIFY(line.size() <= 4096);
    reader.read(frame(3, "c.so") + '\n');
    QCOMPARE(reader.modules().last(), u"c.so"_s);
}

void TraceTest::floodOfFramesIsBounded() {
    TraceReader reader;
    for (int number = 1; number < 100'000; ++number)
        reader.read(frame(number, "a.so") + '\n');
    QVERIFY(reader.lines().size() <= 64);
    QVERIFY(reader.modules().size() <= 64);
    reader.read(signature + '\n' + frame(1, "b.so") + '\n');
    QCOMPARE(reader.modules(), QStringList({u"b.so"_s}));
}

QTEST_GUILESS_MAIN(TraceTest)
#include "tst_trace.moc"
