// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/pluginscollection.h"

#include "errorstream.h"
#include "launcherfixture.h"

#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>

#include <elf.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// How much of a library is loaded; debug information behind it may be missing without harm.
qsizetype loadedSize(const QByteArray &library) {
    const auto *const header = reinterpret_cast<const Elf64_Ehdr *>(library.constData());
    const auto *const segments = reinterpret_cast<const Elf64_Phdr *>(library.constData() + header->e_phoff);
    Elf64_Off end = 0;
    for (int i = 0; i < header->e_phnum; ++i) {
        if (segments[i].p_type == PT_LOAD)
            end = qMax(end, segments[i].p_offset + segments[i].p_filesz);
    }
    return static_cast<qsizetype>(end);
}

} // namespace

/// Each bad library comes between two sound ones, which must not suffer.
class BadPluginsTest : public QObject {
    Q_OBJECT

private slots:
    void badLibraryIsToldAndTheOthersLoad_data();
    void badLibraryIsToldAndTheOthersLoad();
    void iconOutsideThePageIsToldAndShown_data();
    void iconOutsideThePageIsToldAndShown();
    void getterThatThrowsAtTheEndTakesTheOthersOut();
    void replacedIconIsTold();

private:
    QByteArray bytesOf(const QString &name) const;
    QString made(const QString &name, const QByteArray &bytes) const;

    TestConfig config;
    QTemporaryDir directory;
};

QByteArray BadPluginsTest::bytesOf(const QString &name) const {
    QFile file(testPluginFile(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString BadPluginsTest::made(const QString &name, const QByteArray &bytes) const {
    QFile file(directory.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        return {};
    return file.fileName();
}

void BadPluginsTest::badLibraryIsToldAndTheOthersLoad_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("message");

    const QByteArray whole = bytesOf(u"gamma"_s);
    QByteArray foreign = whole;
    foreign[offsetof(Elf64_Ehdr, e_machine)] = EM_PPC64;

    QTest::newRow("missing") << u"/nowhere/libgone.so"_s << u"Plugin //nowhere/libgone.so not found\\."_s;
    QTest::newRow("directory") << directory.path() << u"Plugin .* not found\\."_s;
    QTest::newRow("empty file") << made(u"empty.so"_s, "") << u".*empty.so.*"_s;
    QTest::newRow("text") << made(u"text.so"_s, "hello\n") << u".*text.so.*"_s;
    for (const int percent : {20, 40, 50, 60, 80, 99}) {
        const QString name = u"cut%1.so"_s.arg(percent);
        QTest::addRow("cut after %d %%", percent)
            << made(name, whole.first(loadedSize(whole) * percent / 100)) << ".*"_L1 + name + ".*"_L1;
    }
    QTest::newRow("cut in its header") << made(u"header.so"_s, whole.first(40)) << u".*header.so.*"_s;
    QTest::newRow("another architecture") << made(u"foreign.so"_s, foreign) << u".*foreign.so.*"_s;
    QTest::newRow("library without metadata") << testPluginFile(u"nometadata"_s) << u".*nometadata.so.*"_s;
    QTest::newRow("plug-in of another kind") << testPluginFile(u"wrongkind"_s) << u"Unknown error"_s;
    QTest::newRow("older kind named as the current one") << testPluginFile(u"old"_s) << u"Unknown error"_s;
    QTest::newRow("unresolved symbol")
        << testPluginFile(u"unresolved"_s) << u".*undefined symbol: .*functionThatNobodyDefines.*"_s;
    QTest::newRow("root object throws")
        << testPluginFile(u"rootthrows"_s) << u"Plugin .*librootthrows.so failed: no device"_s;
    QTest::newRow("icon throws") << testPluginFile(u"iconthrows"_s)
                                 << u"Plugin .*libiconthrows.so failed: no picture for the icon"_s;
    QTest::newRow("status widget throws something of its own")
        << testPluginFile(u"statusthrows"_s) << u"Plugin .*libstatusthrows.so failed: unknown exception"_s;
}

void BadPluginsTest::badLibraryIsToldAndTheOthersLoad() {
    QFETCH(QString, file);
    QFETCH(QString, message);
    config = TestConfig();
    configurePlugins(config, {u"alpha"_s, u"beta"_s});
    // Without a path the names of the files are absolute but for the slash in front of them.
    config.setPath(u""_s);
    config.addPlugin(u"alpha"_s, {.row = 1, .file = testPluginFile(u"alpha"_s)});
    config.addPlugin(u"bad"_s, {.row = 2, .file = file});
    config.addPlugin(u"beta"_s, {.row = 3, .file = testPluginFile(u"beta"_s)});
    config.setCollection(u"zr"_s, u"alpha bad beta"_s);

    ErrorStream errors;
    LauncherWindow window;
    window.show();
    const QString told = QString::fromLocal8Bit(errors.take());
    const QRegularExpression lines(QRegularExpression::anchoredPattern(
        u"(%1)\n(initPlugin2 : loading of plugin .* failed\n)?"_s.arg(message)));
    QVERIFY2(lines.match(told).hasMatch(), qPrintable(told));
    QVERIFY(find(window, "icon alpha"));
    QVERIFY(find(window, "icon beta"));
    QVERIFY(!window.grab().isNull());
}

void BadPluginsTest::iconOutsideThePageIsToldAndShown_data() {
    QTest::addColumn<QVariant>("row");
    QTest::newRow("far outside") << QVariant(4'000'000'000U);
    QTest::newRow("nought") << QVariant(0);
    QTest::newRow("absent") << QVariant();
    QTest::newRow("no number") << QVariant(u"first"_s);
}

void BadPluginsTest::iconOutsideThePageIsToldAndShown() {
    QFETCH(QVariant, row);
    config = TestConfig();
    configurePlugins(config, {u"alpha"_s});
    QSettings(u"talvenor"_s, u"zr-launcher"_s).remove(u"alpha/row"_s);
    if (row.isValid())
        config.set(u"alpha/row"_s, row);
    ErrorStream errors;
    LauncherWindow window;
    window.show();
    QCOMPARE(errors.take(), "Plugin %1 names no cell of the page; placed at row 1, column 1\n"_ba.replace(
                                "%1", testPluginFile(u"alpha"_s).toLocal8Bit()));
    QVERIFY(find(window, "icon alpha")->isVisible());
}

void BadPluginsTest::getterThatThrowsAtTheEndTakesTheOthersOut() {
    config = TestConfig();
    configurePlugins(config, {u"throwslater"_s});
    ErrorStream errors;
    {
        LauncherWindow window;
        window.show();
        QVERIFY(find(window, "icon that stays too long")->isVisible());
        QCOMPARE(errors.take(), QByteArray());
    }
    QCOMPARE(errors.take(), "Plugin %1 failed: no status any more\n"_ba.replace(
                                "%1", testPluginFile(u"throwslater"_s).toLocal8Bit()));
    QVERIFY(!isMapped(u"throwslater"_s));
}

void BadPluginsTest::replacedIconIsTold() {
    config = TestConfig();
    configurePlugins(config, {u"alpha"_s, u"beta"_s});
    config.set(u"beta/row"_s, 1);
    ErrorStream errors;
    LauncherWindow window;
    window.show();
    const QString expected = u"Plugin %1 loses its cell at row 1, column 1 to %2\n"_s.arg(
        testPluginFile(u"alpha"_s), testPluginFile(u"beta"_s));
    QCOMPARE(QString::fromLocal8Bit(errors.take()), expected);
    QVERIFY(!find(window, "icon alpha")->isVisible());
    QVERIFY(find(window, "icon beta")->isVisible());
}

QTEST_MAIN(BadPluginsTest)
#include "tst_badplugins.moc"
