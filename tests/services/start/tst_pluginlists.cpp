// SPDX-License-Identifier: GPL-3.0-or-later
#include "pluginlists.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class PluginListsTest : public QObject {
    Q_OBJECT

private slots:
    void noticesReplaceTheirGroups_data();
    void noticesReplaceTheirGroups();
    void topmostListedIsFound_data();
    void topmostListedIsFound();
    void everyCollectionIsListed();
    void librariesAreComparedByWhatTheyAre();
};

void PluginListsTest::noticesReplaceTheirGroups_data() {
    QTest::addColumn<QString>("list");
    QTest::addColumn<QStringList>("groups");
    QTest::addColumn<QString>("replaced");
    QTest::newRow("only one") << u"a"_s << QStringList{u"a"_s} << u"notice-a"_s;
    QTest::newRow("in the middle") << u"a b c"_s << QStringList{u"b"_s} << u"a notice-b c"_s;
    QTest::newRow("two") << u"a b c"_s << QStringList{u"a"_s, u"c"_s} << u"notice-a b notice-c"_s;
    QTest::newRow("none") << u"a b"_s << QStringList{u"x"_s} << u"a b"_s;
    QTest::newRow("beginning of a name") << u"ab a"_s << QStringList{u"a"_s} << u"ab notice-a"_s;
    QTest::newRow("two blanks") << u"a  b"_s << QStringList{u"b"_s} << u"a  notice-b"_s;
    QTest::newRow("empty") << QString() << QStringList{u"a"_s} << QString();
}

void PluginListsTest::noticesReplaceTheirGroups() {
    QFETCH(const QString, list);
    QFETCH(const QStringList, groups);
    QFETCH(const QString, replaced);
    QCOMPARE(withNotices(list, groups), replaced);
    QCOMPARE(withoutNotices(replaced, groups), list);
}

void PluginListsTest::topmostListedIsFound_data() {
    QTest::addColumn<QStringList>("modules");
    QTest::addColumn<QString>("found");
    QTest::newRow("topmost frame") << QStringList{u"/p/a.so"_s, u"/p/b.so"_s} << u"/p/a.so"_s;
    QTest::newRow("below a library of the system")
        << QStringList{u"/lib/libc.so.6"_s, u"/p/b.so"_s, u"/p/a.so"_s} << u"/p/b.so"_s;
    QTest::newRow("only the launcher") << QStringList{u"/bin/zr-launcher"_s} << QString();
    QTest::newRow("same name elsewhere") << QStringList{u"/q/a.so"_s} << QString();
    QTest::newRow("no trace") << QStringList() << QString();
}

void PluginListsTest::topmostListedIsFound() {
    QFETCH(const QStringList, modules);
    QFETCH(const QString, found);
    const QList<ListedPlugin> plugins{{u"zr"_s, u"a"_s, u"/p/a.so"_s}, {u"e1"_s, u"b"_s, u"/p/b.so"_s}};
    QCOMPARE(topmostListed(modules, plugins).value_or(QString()), found);
}

void PluginListsTest::everyCollectionIsListed() {
    const QTemporaryDir directory;
    QSettings store(directory.filePath(u"store.conf"_s), QSettings::IniFormat);
    store.setValue(u"plugins/path"_s, u"/p"_s);
    store.setValue(u"plugins/persistent"_s, u"zr e1"_s);
    store.setValue(u"plugins/zr"_s, u"a  gone b"_s);
    store.setValue(u"plugins/e1"_s, u"b"_s);
    store.setValue(u"a/name"_s, u"liba.so"_s);
    store.setValue(u"b/name"_s, u"sub/../libb.so"_s);
    const QList<ListedPlugin> plugins = listedPlugins(store);
    QCOMPARE(plugins.size(), 3);
    QVERIFY(plugins.contains({u"zr"_s, u"a"_s, u"/p/liba.so"_s}));
    QVERIFY(plugins.contains({u"zr"_s, u"b"_s, u"/p/libb.so"_s}));
    QVERIFY(plugins.contains({u"e1"_s, u"b"_s, u"/p/libb.so"_s}));
}

void PluginListsTest::librariesAreComparedByWhatTheyAre() {
    const QTemporaryDir directory;
    QFile library(directory.filePath(u"libclock.so.1"_s));
    QVERIFY(library.open(QIODevice::WriteOnly));
    QVERIFY(QFile::link(library.fileName(), directory.filePath(u"libclock.so"_s)));
    QCOMPARE(resolvedLibrary(directory.filePath(u"libclock.so"_s)), resolvedLibrary(library.fileName()));
    QCOMPARE(resolvedLibrary(u"/not/there/../x.so"_s), u"/not/x.so"_s);
}

QTEST_GUILESS_MAIN(PluginListsTest)
#include "tst_pluginlists.moc"
