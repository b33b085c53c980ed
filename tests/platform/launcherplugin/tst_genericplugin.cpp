// SPDX-License-Identifier: GPL-3.0-or-later
#include "genericplugin.h"
#include "launcherplugin.h"
#include "pluginwindow.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

class WindowedPlugin : public GenericPlugin {
public:
    QWidget *createWindow() override {
        ++windowsMade;
        return new QWidget;
    }
    using GenericPlugin::own;
    using GenericPlugin::setTitle;

    int windowsMade = 0;
};

} // namespace

class GenericPluginTest : public QObject {
    Q_OBJECT

private slots:
    void baseHasNothingToShow();
    void windowIsMadeOnceWhenFirstWanted();
    void showingAsksForTheWindow();
    void ownWidgetsGoWithThePluginWhereverTheyHang();
    void ownWidgetThatIsGoneAlreadyIsPassedOver();
    void titleIsKept();
    void windowWithoutLevelsIsLeftAtOnce();
    void kindsAreToldApart();
};

void GenericPluginTest::baseHasNothingToShow() {
    GenericPlugin plugin;
    QVERIFY(!plugin.iconWidget());
    QVERIFY(!plugin.statusWidget());
    QVERIFY(!plugin.keeper());
    QVERIFY(!plugin.pluginWindow());
    QVERIFY(!plugin.windowCreated());
}

void GenericPluginTest::windowIsMadeOnceWhenFirstWanted() {
    WindowedPlugin plugin;
    QVERIFY(!plugin.windowCreated());
    QWidget *const window = plugin.pluginWindow();
    QVERIFY(window);
    QVERIFY(plugin.windowCreated());
    QCOMPARE(plugin.pluginWindow(), window);
    QCOMPARE(plugin.windowsMade, 1);
}

void GenericPluginTest::showingAsksForTheWindow() {
    WindowedPlugin plugin;
    const QSignalSpy asked(&plugin, &GenericPlugin::setCurrentWidget);
    plugin.showWindow();
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.first().first().value<QWidget *>(), plugin.pluginWindow());
}

void GenericPluginTest::ownWidgetsGoWithThePluginWhereverTheyHang() {
    QWidget page;
    auto plugin = std::make_unique<WindowedPlugin>();
    const QPointer<QWidget> icon = plugin->own(new QWidget(&page));
    const QPointer<QWidget> window = plugin->pluginWindow();
    window->setParent(&page);
    plugin.reset();
    QVERIFY(!icon);
    QVERIFY(!window);
}

void GenericPluginTest::ownWidgetThatIsGoneAlreadyIsPassedOver() {
    auto plugin = std::make_unique<WindowedPlugin>();
    delete plugin->own(new QWidget);
    plugin.reset();
    QVERIFY(!plugin);
}

void GenericPluginTest::titleIsKept() {
    WindowedPlugin plugin;
    plugin.setTitle(u"Thresholds"_s);
    QCOMPARE(plugin.title(), u"Thresholds"_s);
}

void GenericPluginTest::windowWithoutLevelsIsLeftAtOnce() {
    QVERIFY(PluginWindow().stepBack());
}

void GenericPluginTest::kindsAreToldApart() {
    GenericPlugin generic;
    QObject *const root = &generic;
    QVERIFY(qobject_cast<GenericPlugin *>(root));
    QVERIFY(!qobject_cast<LauncherPlugin *>(root));
}

QTEST_MAIN(GenericPluginTest)
#include "tst_genericplugin.moc"
