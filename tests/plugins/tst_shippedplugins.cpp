// SPDX-License-Identifier: GPL-3.0-or-later
#include <abstractkeeper.h>
#include <genericplugin.h>
#include <icontile.h>
#include <launcherplugin.h>
#include <pluginwindow.h>
#include <ui/colourchoice.h>

#include <QFile>
#include <QPluginLoader>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

/// One of the libraries that ship, loaded as the launcher does.
class ShippedPlugin {
public:
    explicit ShippedPlugin(const QString &name)
        : loader(QStringLiteral(SHIPPED_PLUGIN_DIR "/lib%1.so").arg(name)) {
        loader.setLoadHints(QLibrary::ResolveAllSymbolsHint);
    }
    ~ShippedPlugin() { loader.unload(); }
    ShippedPlugin(const ShippedPlugin &) = delete;
    ShippedPlugin &operator=(const ShippedPlugin &) = delete;

    template <typename Root>
    Root *root() {
        return qobject_cast<Root *>(loader.instance());
    }
    QString error() const { return loader.errorString(); }
    bool unload() { return loader.unload(); }
    bool isMapped() const {
        QFile maps(u"/proc/self/maps"_s);
        return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(loader.fileName().toLocal8Bit());
    }

private:
    QPluginLoader loader;
};

} // namespace

class ShippedPluginsTest : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s)); }
    void currentKindLoads_data();
    void currentKindLoads();
    void iconBringsTheWindowUp_data();
    void iconBringsTheWindowUp();
    void iconHasAPicture_data();
    void iconHasAPicture();
    void statusWidgetIsTheSameEachTime_data();
    void statusWidgetIsTheSameEachTime();
    void widgetsGoWithTheirLibrary_data();
    void widgetsGoWithTheirLibrary();
    void networkIconSpansTwoRows();
    void systemSavesButDoesNotLoad();
    void systemAnnouncesItsLevelWhenBroughtUp();
    void refreshHasAWindowButNoIcon();
    void nightSwitchesTheColoursToAndFro();
    void reportsIsOfTheOlderKind();
    void reportsBringsItsWindowUp();
    void reportsHasNoWindowBeforeItIsWanted();
    void everyNoticeHasARootOfItsOwn();

private:
    static void addPlugins(const QStringList &names);
};

void ShippedPluginsTest::addPlugins(const QStringList &names) {
    QTest::addColumn<QString>("name");
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void ShippedPluginsTest::currentKindLoads_data() {
    addPlugins({u"system"_s, u"network"_s, u"refresh"_s, u"notice1"_s, u"notice8"_s});
}

void ShippedPluginsTest::currentKindLoads() {
    QFETCH(const QString, name);
    ShippedPlugin plugin(name);
    QVERIFY2(plugin.root<GenericPlugin>(), qPrintable(plugin.error()));
    QVERIFY(!plugin.root<GenericPlugin>()->title().isEmpty());
    QVERIFY(!plugin.root<GenericPlugin>()->windowCreated());
}

void ShippedPluginsTest::iconBringsTheWindowUp_data() {
    addPlugins({u"system"_s, u"network"_s, u"notice1"_s, u"notice8"_s});
}

void ShippedPluginsTest::iconBringsTheWindowUp() {
    QFETCH(const QString, name);
    ShippedPlugin plugin(name);
    auto *const root = plugin.root<GenericPlugin>();
    const QSignalSpy asked(root, &GenericPlugin::setCurrentWidget);
    qobject_cast<QAbstractButton *>(root->iconWidget())->click();
    QCOMPARE(asked.count(), 1);
    QVERIFY(qobject_cast<PluginWindow *>(root->pluginWindow()));
    QCOMPARE(asked.first().first().value<QWidget *>(), root->pluginWindow());
}

void ShippedPluginsTest::iconHasAPicture_data() {
    addPlugins({u"system"_s, u"network"_s, u"sound"_s, u"night"_s, u"notice1"_s, u"notice8"_s});
}

void ShippedPluginsTest::iconHasAPicture() {
    QFETCH(const QString, name);
    ShippedPlugin plugin(name);
    const auto *const tile = qobject_cast<IconTile *>(plugin.root<GenericPlugin>()->iconWidget());
    QVERIFY(tile);
    QCOMPARE(tile->icon().pixmap(40).size(), QSize(40, 40));
    QVERIFY(!tile->text().isEmpty());
}

void ShippedPluginsTest::statusWidgetIsTheSameEachTime_data() {
    addPlugins({u"system"_s, u"network"_s});
}

void ShippedPluginsTest::statusWidgetIsTheSameEachTime() {
    QFETCH(const QString, name);
    ShippedPlugin plugin(name);
    auto *const root = plugin.root<GenericPlugin>();
    QVERIFY(root->statusWidget());
    QCOMPARE(root->statusWidget(), root->statusWidget());
    QCOMPARE(root->iconWidget(), root->iconWidget());
}

void ShippedPluginsTest::widgetsGoWithTheirLibrary_data() {
    addPlugins({u"system"_s, u"network"_s, u"refresh"_s, u"notice1"_s, u"notice8"_s});
}

void ShippedPluginsTest::widgetsGoWithTheirLibrary() {
    QFETCH(const QString, name);
    QWidget page;
    QList<QPointer<QWidget>> widgets;
    ShippedPlugin plugin(name);
    for (QWidget *const widget :
         {plugin.root<GenericPlugin>()->iconWidget(), plugin.root<GenericPlugin>()->statusWidget(),
          plugin.root<GenericPlugin>()->pluginWindow()}) {
        if (!widget)
            continue;
        widget->setParent(&page);
        widget->show();
        widgets.append(widget);
    }
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    QVERIFY(plugin.unload());
    QVERIFY(!plugin.isMapped());
    for (const QPointer<QWidget> &widget : widgets)
        QVERIFY(!widget);
}

void ShippedPluginsTest::networkIconSpansTwoRows() {
    ShippedPlugin plugin(u"network"_s);
    QCOMPARE(plugin.root<GenericPlugin>()->iconWidget()->property("rows").toInt(), 2);
}

void ShippedPluginsTest::systemSavesButDoesNotLoad() {
    ShippedPlugin plugin(u"system"_s);
    AbstractKeeper *const keeper = plugin.root<GenericPlugin>()->keeper();
    QVERIFY(keeper->canBeSaved());
    QVERIFY(!keeper->canBeLoaded());
}

void ShippedPluginsTest::systemAnnouncesItsLevelWhenBroughtUp() {
    ShippedPlugin plugin(u"system"_s);
    auto *const root = plugin.root<GenericPlugin>();
    const QSignalSpy titles(qobject_cast<PluginWindow *>(root->pluginWindow()), &PluginWindow::setTitle);
    root->showWindow();
    QCOMPARE(titles.count(), 1);
}

void ShippedPluginsTest::refreshHasAWindowButNoIcon() {
    ShippedPlugin plugin(u"refresh"_s);
    auto *const root = plugin.root<GenericPlugin>();
    QVERIFY(!root->iconWidget());
    QVERIFY(!root->statusWidget());
    QVERIFY(!root->keeper());
    QCOMPARE(root->pluginWindow()->windowTitle(), root->title());
}

void ShippedPluginsTest::nightSwitchesTheColoursToAndFro() {
    ShippedPlugin plugin(u"night"_s);
    auto *const icon = qobject_cast<QAbstractButton *>(plugin.root<GenericPlugin>()->iconWidget());
    QVERIFY(icon);
    for (const PaletteFactory::Set set : {PaletteFactory::Night, PaletteFactory::Day}) {
        icon->click();
        QCOMPARE(PaletteFactory::set(), set);
        QCOMPARE(ColourChoice::stored(), set);
        QCOMPARE(icon->isChecked(), set == PaletteFactory::Night);
    }
}

void ShippedPluginsTest::reportsIsOfTheOlderKind() {
    ShippedPlugin plugin(u"reports"_s);
    QVERIFY2(plugin.root<LauncherPlugin>(), qPrintable(plugin.error()));
    QVERIFY(!plugin.root<GenericPlugin>());
    QCOMPARE(qobject_cast<IconTile *>(plugin.root<LauncherPlugin>()->iconWidget())->icon().pixmap(40).size(),
             QSize(40, 40));
    QVERIFY(!plugin.root<LauncherPlugin>()->statusWidget());
}

void ShippedPluginsTest::reportsBringsItsWindowUp() {
    ShippedPlugin plugin(u"reports"_s);
    auto *const root = plugin.root<LauncherPlugin>();
    const QSignalSpy asked(root, &LauncherPlugin::setCurrentWidget);
    qobject_cast<QAbstractButton *>(root->iconWidget())->click();
    QCOMPARE(asked.count(), 1);
    const QPointer<QWidget> window = root->pluginWindow();
    QCOMPARE(asked.first().first().value<QWidget *>(), window.data());
    window->show();
    QVERIFY(plugin.unload());
    QVERIFY(!window);
    QVERIFY(!plugin.isMapped());
}

void ShippedPluginsTest::reportsHasNoWindowBeforeItIsWanted() {
    ShippedPlugin plugin(u"reports"_s);
    QVERIFY(!plugin.root<LauncherPlugin>()->pluginWindow());
}

void ShippedPluginsTest::everyNoticeHasARootOfItsOwn() {
    std::vector<std::unique_ptr<ShippedPlugin>> plugins;
    QSet<QWidget *> icons;
    for (int number = 1; number <= NOTICE_COUNT; ++number) {
        plugins.push_back(std::make_unique<ShippedPlugin>(u"notice%1"_s.arg(number)));
        auto *const root = plugins.back()->root<GenericPlugin>();
        QVERIFY2(root, qPrintable(plugins.back()->error()));
        icons.insert(root->iconWidget());
    }
    QCOMPARE(icons.size(), NOTICE_COUNT);
}

QTEST_MAIN(ShippedPluginsTest)
#include "tst_shippedplugins.moc"
