// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/pluginscollection.h"

#include "debuglines.h"
#include "errorstream.h"
#include "launcherfixture.h"
#include "ui/iconpage.h"

#include <genericplugin.h>
#include <statuspanel.h>

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

class PluginsCollectionTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { window.reset(); }

    void baseHasNoLedsAndLetsEveryoneIn();
    void missingGroupPluginsIsTold();
    void absentGroupIsTold_data();
    void absentGroupIsTold();
    void unknownVersionRunsIntoTheNextMessage();
    void absentVersionIsUnknown();
    void failuresAreCounted_data();
    void failuresAreCounted();
    void pageThatStaysEmptySaysHowManyFailed_data();
    void pageThatStaysEmptySaysHowManyFailed();
    void pluginsAreLoadedInTheOrderOfTheList();
    void debugLinesTellEveryLoad();
    void iconAndStatusWidgetArePlaced();
    void oldStylePluginIsPlaced();
    void oldStylePluginWithoutIconGetsNothing();
    void genericPluginWithoutWidgetsIsLoaded();
    void settingsPluginsComeInTheOrderOfTheirNames();
    void settingsNamesThatDenoteNothingAreIgnored_data();
    void settingsNamesThatDenoteNothingAreIgnored();
    void unloadingUnmapsTheLibraries();
    void unloadingGoesInLoadingOrder();
    void unloadingTakesEveryWidgetOutFirst();
    void unloadingNeverCreatesTheWindow();
    void collectionUnloadsWhenItEnds();
    void oneLibraryNamedTwiceIsUnloadedWithoutHarm();
    void thousandNamesAreAllTried();

private:
    /// A collection named "e1" with its page, loaded from the configuration.
    std::unique_ptr<PluginsCollection> loaded() {
        auto collection = std::make_unique<PluginsCollection>(u"e1"_s, false, nullptr);
        window->newCollectionPage(collection.get());
        return collection;
    }
    void configureE1(const QStringList &names) {
        configurePlugins(config, names);
        config.setCollection(u"e1"_s, names.join(u' '));
        config.setCollection(u"zr"_s, u""_s);
    }

    TestConfig config;
    std::unique_ptr<LauncherWindow> window;
};

void PluginsCollectionTest::init() {
    QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s));
    config = TestConfig();
    config.setPersistent(u"zr"_s);
    window = std::make_unique<LauncherWindow>();
}

void PluginsCollectionTest::baseHasNoLedsAndLetsEveryoneIn() {
    PluginsCollection collection(u"zr"_s, true);
    QVERIFY(collection.enter());
    QVERIFY(collection.persistent());
    QCOMPARE(collection.name(), u"zr"_s);
}

void PluginsCollectionTest::missingGroupPluginsIsTold() {
    config = TestConfig();
    ErrorStream errors;
    PluginsCollection(u"e1"_s, false).load();
    QCOMPARE(errors.take(),
             "no plugins can be loaded because no proper settings in configuration file.\n"_ba);
}

void PluginsCollectionTest::absentGroupIsTold_data() {
    QTest::addColumn<QString>("list");
    QTest::addColumn<QByteArray>("errors");
    const QByteArray nameless = "Invalid configuration file: group '' is absent\n";
    QTest::newRow("group that is not there")
        << u"ghost"_s << "Invalid configuration file: group 'ghost' is absent\n"_ba;
    QTest::newRow("empty list is one empty name") << QString() << nameless;
    QTest::newRow("two blanks make an empty name in between")
        << u"a  b"_s
        << "Invalid configuration file: group 'a' is absent\n"_ba + nameless +
               "Invalid configuration file: group 'b' is absent\n";
    QTest::newRow("blanks at both ends make empty names")
        << u" a "_s << nameless + "Invalid configuration file: group 'a' is absent\n" + nameless;
}

void PluginsCollectionTest::absentGroupIsTold() {
    QFETCH(QString, list);
    config.setCollection(u"e1"_s, list);
    ErrorStream errors;
    PluginsCollection(u"e1"_s, false).load();
    QTEST(errors.take(), "errors");
}

void PluginsCollectionTest::unknownVersionRunsIntoTheNextMessage() {
    config.setPath(u"/nowhere"_s);
    config.setCollection(u"e1"_s, u"strange ghost"_s);
    config.addPlugin(u"strange"_s, {.version = 7, .file = u"libstrange.so"_s});
    ErrorStream errors;
    PluginsCollection(u"e1"_s, false).load();
    QCOMPARE(errors.take(), "Unknown version7of plugin/nowhere/libstrange.so"
                            "Invalid configuration file: group 'ghost' is absent\n"_ba);
}

void PluginsCollectionTest::absentVersionIsUnknown() {
    config.setCollection(u"e1"_s, u"strange"_s);
    config.set(u"strange/name"_s, u"libalpha.so"_s);
    ErrorStream errors;
    PluginsCollection(u"e1"_s, false).load();
    QCOMPARE(errors.take(), "Unknown version0of plugin/libalpha.so"_ba);
}

void PluginsCollectionTest::failuresAreCounted_data() {
    QTest::addColumn<QString>("list");
    QTest::addColumn<int>("failures");
    QTest::newRow("nothing is listed") << QString() << 0;
    QTest::newRow("empty names name nothing") << u" alpha  "_s << 0;
    QTest::newRow("all can be loaded") << u"alpha old nowidgets"_s << 0;
    QTest::newRow("libraries are missing") << u"nofile alpha oldnofile"_s << 2;
    QTest::newRow("old style without icon") << u"oldwithouticon"_s << 1;
}

void PluginsCollectionTest::failuresAreCounted() {
    QFETCH(const QString, list);
    configureE1(list.split(u' ', Qt::SkipEmptyParts));
    config.setCollection(u"e1"_s, list);
    const ErrorStream errors;
    const auto collection = loaded();
    QTEST(collection->failedPlugins(), "failures");
    window->rmCollectionPages({collection.get()});
}

void PluginsCollectionTest::pageThatStaysEmptySaysHowManyFailed_data() {
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("text");
    const QString failed = u"Functions that could not be loaded: %1"_s;
    QTest::newRow("nothing is listed") << QString() << u"No functions are configured for this card"_s;
    QTest::newRow("groups are absent") << u"ghost ghoul"_s << failed.arg(2);
    QTest::newRow("version is unknown") << u"strange"_s << failed.arg(1);
    QTest::newRow("library is missing") << u"missing"_s << failed.arg(1);
}

void PluginsCollectionTest::pageThatStaysEmptySaysHowManyFailed() {
    QFETCH(const QString, list);
    config.setPath(u"/nowhere"_s);
    config.setCollection(u"e1"_s, list);
    config.addPlugin(u"strange"_s, {.version = 7, .file = u"libstrange.so"_s});
    config.addPlugin(u"missing"_s, {.file = u"libmissing.so"_s});
    const ErrorStream errors;
    const auto collection = loaded();
    QStringList texts;
    for (const IconPage *const page : window->findChildren<IconPage *>())
        texts.append(page->emptyText());
    QFETCH(const QString, text);
    QVERIFY2(texts.contains(text), qPrintable(texts.join(u", "_s)));
    window->rmCollectionPages({collection.get()});
}

void PluginsCollectionTest::pluginsAreLoadedInTheOrderOfTheList() {
    config.setCollection(u"e1"_s, u"b a"_s);
    config.addPlugin(u"a"_s, {.file = u"liba.so"_s});
    config.addPlugin(u"b"_s, {.file = u"libb.so"_s});
    config.setPath(u"/nowhere"_s);
    ErrorStream errors;
    PluginsCollection(u"e1"_s, false).load();
    QCOMPARE(errors.take(), "Plugin /nowhere/libb.so not found.\n"
                            "initPlugin2 : loading of plugin /nowhere/libb.so failed\n"
                            "Plugin /nowhere/liba.so not found.\n"
                            "initPlugin2 : loading of plugin /nowhere/liba.so failed\n"_ba);
}

void PluginsCollectionTest::debugLinesTellEveryLoad() {
    configureE1({u"alpha"_s, u"old"_s});
    const DebugLines debug;
    {
        const auto collection = loaded();
        QCOMPARE(debug.lines(), QStringList({"initPlugin2 : loading plugin "_L1 + testPluginFile(u"alpha"_s),
                                             "initPlugin : loading plugin "_L1 + testPluginFile(u"old"_s),
                                             u"all plugins loaded"_s}));
        window->rmCollectionPages({collection.get()});
    }
    QCOMPARE(debug.lines().last(), u"unload"_s);
}

void PluginsCollectionTest::iconAndStatusWidgetArePlaced() {
    configureE1({u"alpha"_s});
    const auto collection = loaded();
    const auto *const icon = find<QPushButton>(*window, "icon alpha");
    QVERIFY(icon);
    QVERIFY(qobject_cast<StatusPanel *>(find(*window, "status alpha")->parentWidget()));
    QCOMPARE(collection->fileOfIcon(icon), testPluginFile(u"alpha"_s));
    window->rmCollectionPages({collection.get()});
}

void PluginsCollectionTest::oldStylePluginIsPlaced() {
    configureE1({u"old"_s});
    const auto collection = loaded();
    QVERIFY(find(*window, "icon old"));
    QVERIFY(qobject_cast<StatusPanel *>(find(*window, "status old")->parentWidget()));
    window->rmCollectionPages({collection.get()});
}

void PluginsCollectionTest::oldStylePluginWithoutIconGetsNothing() {
    configureE1({u"oldwithouticon"_s});
    ErrorStream errors;
    const auto collection = loaded();
    QCOMPARE(errors.take(), QByteArray());
    QVERIFY(isMapped(u"oldwithouticon"_s));
    for (const StatusPanel *const panel : window->findChildren<StatusPanel *>())
        QVERIFY(panel->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly).size() != 1);
    window->rmCollectionPages({collection.get()});
    QVERIFY(!isMapped(u"oldwithouticon"_s));
}

void PluginsCollectionTest::genericPluginWithoutWidgetsIsLoaded() {
    configureE1({u"nowidgets"_s});
    ErrorStream errors;
    const auto collection = loaded();
    QCOMPARE(errors.take(), QByteArray());
    QVERIFY(isMapped(u"nowidgets"_s));
    window->rmCollectionPages({collection.get()});
}

void PluginsCollectionTest::settingsPluginsComeInTheOrderOfTheirNames() {
    configureE1({u"alpha"_s, u"beta"_s, u"gamma"_s});
    config.set(u"alpha/settings"_s, u"gamma beta"_s);
    const auto collection = loaded();
    auto *const alpha = qobject_cast<GenericPlugin *>(pluginRoot(u"alpha"_s));
    QStringList titles;
    for (const GenericPlugin *const plugin : collection->settingPlugins(alpha))
        titles.append(plugin->title());
    QCOMPARE(titles, QStringList({u"gamma"_s, u"beta"_s}));
    QVERIFY(collection->hasSettings(alpha));
    QVERIFY(!collection->hasSettings(qobject_cast<GenericPlugin *>(pluginRoot(u"beta"_s))));
    QVERIFY(!collection->hasSettings(nullptr));
    window->rmCollectionPages({collection.get()});
}

void PluginsCollectionTest::settingsNamesThatDenoteNothingAreIgnored_data() {
    QTest::addColumn<QString>("settings");
    QTest::newRow("absent") << QString();
    QTest::newRow("empty") << u""_s;
    QTest::newRow("no such group") << u"ghost"_s;
    QTest::newRow("of the older kind") << u"old"_s;
    QTest::newRow("of another collection") << u"gamma"_s;
    QTest::newRow("blanks") << u"  "_s;
}

void PluginsCollectionTest::settingsNamesThatDenoteNothingAreIgnored() {
    QFETCH(QString, settings);
    configureE1({u"alpha"_s, u"old"_s});
    config.addPlugin(u"gamma"_s, {.file = u"libgamma.so"_s});
    config.set(u"alpha/settings"_s, settings);
    const auto collection = loaded();
    auto *const alpha = qobject_cast<GenericPlugin *>(pluginRoot(u"alpha"_s));
    QVERIFY(!collection->hasSettings(alpha));
    QVERIFY(collection->settingPlugins(alpha).isEmpty());
    window->rmCollectionPages({collection.get()});
}

void PluginsCollectionTest::unloadingUnmapsTheLibraries() {
    configureE1({u"alpha"_s, u"old"_s, u"nowidgets"_s});
    const auto collection = loaded();
    QVERIFY(isMapped(u"alpha"_s) && isMapped(u"old"_s) && isMapped(u"nowidgets"_s));
    collection->unload();
    QVERIFY(!isMapped(u"alpha"_s));
    QVERIFY(!isMapped(u"old"_s));
    QVERIFY(!isMapped(u"nowidgets"_s));
    window->rmCollectionPages({collection.get()});
}

void PluginsCollectionTest::unloadingGoesInLoadingOrder() {
    configureE1({u"beta"_s, u"alpha"_s, u"gamma"_s});
    const auto collection = loaded();
    QStringList ended;
    for (const QString &name : {u"alpha"_s, u"beta"_s, u"gamma"_s})
        connect(pluginRoot(name), &QObject::destroyed, this, [&ended, name] { ended.append(name); });
    collection->unload();
    QCOMPARE(ended, QStringList({u"beta"_s, u"alpha"_s, u"gamma"_s}));
    window->rmCollectionPages({collection.get()});
}

void PluginsCollectionTest::unloadingTakesEveryWidgetOutFirst() {
    configureE1({u"alpha"_s, u"old"_s});
    const auto collection = loaded();
    window->show();
    clickIcon(*window, "icon old");
    clickIcon(*window, "icon alpha");
    QVERIFY(find(*window, "window alpha"));
    collection->unload();
    for (const QWidget *const widget : window->findChildren<QWidget *>())
        QVERIFY2(!widget->objectName().endsWith("alpha"_L1) && !widget->objectName().endsWith("old"_L1),
                 qPrintable(widget->objectName()));
    // Nothing that is painted now may lie in an unmapped library.
    QVERIFY(!window->grab().isNull());
    window->rmCollectionPages({collection.get()});
}

void PluginsCollectionTest::unloadingNeverCreatesTheWindow() {
    configureE1({u"alpha"_s});
    const auto collection = loaded();
    QStringList createdNames;
    QPointer<QObject> root = pluginRoot(u"alpha"_s);
    connect(root, &QObject::destroyed, this, [&createdNames] {
        for (const QWidget *const widget : QApplication::allWidgets())
            createdNames.append(widget->objectName());
    });
    collection->unload();
    QVERIFY(!root);
    QVERIFY(!createdNames.contains("window alpha"_L1));
    window->rmCollectionPages({collection.get()});
}

void PluginsCollectionTest::collectionUnloadsWhenItEnds() {
    configureE1({u"alpha"_s});
    auto collection = std::make_unique<PluginsCollection>(u"e1"_s, false);
    QVERIFY(collection->initPlugin2(testPluginFile(u"alpha"_s), 0, 0));
    QVERIFY(isMapped(u"alpha"_s));
    collection.reset();
    QVERIFY(!isMapped(u"alpha"_s));
}

void PluginsCollectionTest::oneLibraryNamedTwiceIsUnloadedWithoutHarm() {
    configureE1({u"alpha"_s});
    config.addPlugin(u"again"_s, {.row = 2, .file = u"libalpha.so"_s});
    config.setCollection(u"e1"_s, u"alpha again"_s);
    const auto collection = loaded();
    collection->unload();
    QVERIFY(!isMapped(u"alpha"_s));
    window->rmCollectionPages({collection.get()});
}

void PluginsCollectionTest::thousandNamesAreAllTried() {
    QStringList names;
    for (int i = 0; i < 1000; ++i)
        names.append(u"ghost%1"_s.arg(i));
    config.setCollection(u"e1"_s, names.join(u' '));
    ErrorStream errors;
    PluginsCollection(u"e1"_s, false).load();
    QCOMPARE(errors.take().count("is absent\n"), 1000);
}

QTEST_MAIN(PluginsCollectionTest)
#include "tst_pluginscollection.moc"
