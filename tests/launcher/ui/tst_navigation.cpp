// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherfixture.h"

#include "plugins/pluginscollection.h"
#include "ui/launcherheader.h"
#include "ui/vboxpopup.h"

#include <abstractkeeper.h>
#include <genericplugin.h>
#include <pluginwindow.h>
#include <popuplabel.h>
#include <pressinglabel.h>
#include <statuspanel.h>

#include <QDialog>
#include <QRegularExpression>
#include <QStackedWidget>

using namespace Qt::Literals::StringLiterals;

/// From the icon page into plug-in windows, their settings, and out again, with real plug-in libraries.
class NavigationTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { window.reset(); }

    void iconShowsThePluginsWindow();
    void oldStylePluginsWindowIsShown();
    void pluginWithoutIconIsShownWhenItAsks();
    void nullWindowIsIgnored();
    void backLeavesTheWindow();
    void backGoesThroughTheLevelsFirst();
    void backOnTheIconPageDoesNothing();
    void homeGoesThroughAllLevelsAtOnce();
    void homeEndsWithAWindowThatNeverGivesWay();
    void homeHidesAnActiveDialog();
    void settingsOpenTheOnlySettingsPlugin();
    void settingsWithoutPluginShowNothing();
    void severalSettingsPluginsAreOfferedBesideTheLabel();
    void chosenSettingsPluginIsShown();
    void samePopupIsOfferedAgain();
    void callerWithoutPluginIsOfferedNothing();
    void pressOutsideTheOfferKeepsTheWindow();
    void homeClosesTheOffer();
    void newCardClosesTheOffer();
    void settingsPluginIsChosenByKeys();
    void unloadingAnOfferedPluginLeavesItsButton();
    void backFromSettingsReturnsToTheCaller();
    void secondPressOnSettingsKeepsTheFirstCaller();
    void newCollectionForgetsTheCaller();
    void windowThatDeletesItselfLeadsHome();
    void homeForgetsTheCaller();
    void settingsLabelIsShownOnlyWhereItLeadsSomewhere();
    void captionFollowsOnlyTheShownWindow();
    void backTextFollowsOnlyTheShownWindow();
    void saveAndLoadReachTheCurrentKeeper();
    void saveAndLoadAreEnabledByTheCurrentKeeper();
    void collectionSwitchLeadsHome();
    void pluginMayKeepNewCardsFromTakingTheScreen();
    void unloadingTheShownPluginLeadsHome();

private:
    QWidget *shown() const { return window->getStackedWidget()->currentWidget(); }
    QString shownName() const { return shown()->objectName(); }
    LauncherHeader *header() const { return window->findChild<LauncherHeader *>(); }
    void back() const { header()->backButton()->click(); }
    void pressSettings() const { emit find<PressingLabel>(*window, "labelSettings")->clicked(); }
    VBoxPopup *offer() const { return window->findChild<VBoxPopup *>(); }
    QPushButton *offered(int index) const { return offer()->findChildren<QPushButton *>().at(index); }
    void restart(int height);
    void offerTwo(int height = 480);
    QPushButton *reportButton(int index) const {
        return window->findChild<PopupLabel *>()->panel()->findChildren<QPushButton *>().at(index);
    }
    static GenericPlugin *plugin(const QString &name) {
        return qobject_cast<GenericPlugin *>(pluginRoot(name));
    }

    TestConfig config;
    std::unique_ptr<LauncherWindow> window;
};

void NavigationTest::init() {
    QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s));
    config = TestConfig();
    configurePlugins(config, {u"alpha"_s, u"beta"_s, u"gamma"_s, u"old"_s, u"nowidgets"_s, u"plainwindow"_s});
    config.set(u"alpha/settings"_s, u"gamma"_s);
    config.set(u"beta/settings"_s, u"gamma"_s);
    restart(480);
}

void NavigationTest::restart(int height) {
    window.reset();
    window = std::make_unique<LauncherWindow>();
    window->resize(800, height);
    window->show();
}

void NavigationTest::offerTwo(int height) {
    config.set(u"alpha/settings"_s, u"gamma beta"_s);
    restart(height);
    clickIcon(*window, "icon alpha");
    pressSettings();
    QVERIFY(offer());
    QVERIFY(offer()->isVisible());
}

void NavigationTest::iconShowsThePluginsWindow() {
    QVERIFY(!plugin(u"alpha"_s)->windowCreated());
    clickIcon(*window, "icon alpha");
    QCOMPARE(shownName(), u"window alpha"_s);
    QCOMPARE(header()->text(), u"Title of alpha"_s);
    QCOMPARE(header()->backButton()->text(), u"\u25C4 Settings"_s);
    QVERIFY(header()->backButton()->isVisible());
    QVERIFY(shown()->autoFillBackground());
}

void NavigationTest::oldStylePluginsWindowIsShown() {
    clickIcon(*window, "icon old");
    QCOMPARE(shownName(), u"window old"_s);
    QVERIFY(find(*window, "labelReport")->isHidden());
    QVERIFY(find(*window, "labelSettings")->isHidden());
}

void NavigationTest::pluginWithoutIconIsShownWhenItAsks() {
    plugin(u"plainwindow"_s)->showWindow();
    QCOMPARE(shown(), plugin(u"plainwindow"_s)->pluginWindow());
    // It has no levels, so Back leaves it at once.
    back();
    QCOMPARE(shownName(), u"pageLauncher"_s);
}

void NavigationTest::nullWindowIsIgnored() {
    plugin(u"nowidgets"_s)->showWindow();
    QCOMPARE(shownName(), u"pageLauncher"_s);
}

void NavigationTest::backLeavesTheWindow() {
    clickIcon(*window, "icon alpha");
    back();
    QCOMPARE(shownName(), u"pageLauncher"_s);
    QCOMPARE(header()->text(), u"Settings"_s);
    QVERIFY(header()->backButton()->isHidden());
    QVERIFY(find(*window, "labelReport")->isHidden());
    QVERIFY(find(*window, "labelSettings")->isHidden());
}

void NavigationTest::backGoesThroughTheLevelsFirst() {
    clickIcon(*window, "icon alpha");
    shown()->setProperty("levels", 2);
    back();
    back();
    QCOMPARE(shownName(), u"window alpha"_s);
    back();
    QCOMPARE(shownName(), u"pageLauncher"_s);
    QCOMPARE(find(*window, "window alpha")->property("stepsBack").toInt(), 3);
}

void NavigationTest::backOnTheIconPageDoesNothing() {
    back();
    QCOMPARE(shownName(), u"pageLauncher"_s);
    QCOMPARE(header()->text(), u"Settings"_s);
}

void NavigationTest::homeGoesThroughAllLevelsAtOnce() {
    clickIcon(*window, "icon alpha");
    shown()->setProperty("levels", 3);
    window->goHome();
    QCOMPARE(shownName(), u"pageLauncher"_s);
    QCOMPARE(find(*window, "window alpha")->property("stepsBack").toInt(), 4);
    window->goHome();
    QCOMPARE(find(*window, "window alpha")->property("stepsBack").toInt(), 4);
}

void NavigationTest::homeEndsWithAWindowThatNeverGivesWay() {
    clickIcon(*window, "icon alpha");
    shown()->setProperty("levels", std::numeric_limits<int>::max());
    window->goHome();
    QCOMPARE(shownName(), u"pageLauncher"_s);
}

void NavigationTest::homeHidesAnActiveDialog() {
    clickIcon(*window, "icon alpha");
    QDialog dialog(window.get());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    window->goHome();
    QVERIFY(dialog.isHidden());
    QVERIFY(window->isVisible());
}

void NavigationTest::settingsOpenTheOnlySettingsPlugin() {
    clickIcon(*window, "icon alpha");
    QVERIFY(find(*window, "labelSettings")->isVisible());
    pressSettings();
    QCOMPARE(shownName(), u"window gamma"_s);
    QCOMPARE(header()->text(), u"Title of gamma"_s);
}

void NavigationTest::settingsWithoutPluginShowNothing() {
    clickIcon(*window, "icon gamma");
    pressSettings();
    QVERIFY(!offer());
    QCOMPARE(shownName(), u"window gamma"_s);
    back();
    QCOMPARE(shownName(), u"window gamma"_s);
    back();
    QCOMPARE(shownName(), u"pageLauncher"_s);
}

void NavigationTest::severalSettingsPluginsAreOfferedBesideTheLabel() {
    for (const int height : {480, 600}) {
        offerTwo(height);
        QCOMPARE(shownName(), u"window alpha"_s);
        const QWidget *const label = find(*window, "labelSettings");
        QVERIFY(offer()->x() > label->mapToGlobal(label->rect().topRight()).x());
        QVERIFY(window->geometry().contains(offer()->geometry()));
        QCOMPARE(offer()->maximumHeight(), 122);
        QCOMPARE(offered(0)->text(), u"gamma"_s);
        QCOMPARE(offered(1)->text(), u"beta"_s);
    }
}

void NavigationTest::chosenSettingsPluginIsShown() {
    offerTwo();
    QTest::mouseClick(offered(1), Qt::LeftButton);
    QVERIFY(offer()->isHidden());
    QCOMPARE(shownName(), u"window beta"_s);
    QVERIFY(find(*window, "labelSettings")->isVisible());
    back();
    QCOMPARE(shownName(), u"window alpha"_s);
}

void NavigationTest::samePopupIsOfferedAgain() {
    offerTwo();
    VBoxPopup *const first = offer();
    QTest::mouseClick(offered(0), Qt::LeftButton);
    QCOMPARE(shownName(), u"window gamma"_s);
    pressSettings();
    QVERIFY(first->isVisible());
    QCOMPARE(window->findChildren<VBoxPopup *>(), QList<VBoxPopup *>{first});
}

void NavigationTest::callerWithoutPluginIsOfferedNothing() {
    clickIcon(*window, "icon old");
    pressSettings();
    QVERIFY(!offer());
    QCOMPARE(shownName(), u"window old"_s);
}

void NavigationTest::pressOutsideTheOfferKeepsTheWindow() {
    offerTwo();
    QTest::mouseClick(offer(), Qt::LeftButton, {}, QPoint(-60, -60));
    QVERIFY(offer()->isHidden());
    QCOMPARE(shownName(), u"window alpha"_s);
}

void NavigationTest::homeClosesTheOffer() {
    offerTwo();
    window->goHome();
    QVERIFY(offer()->isHidden());
    QCOMPARE(shownName(), u"pageLauncher"_s);
}

void NavigationTest::newCardClosesTheOffer() {
    offerTwo();
    PluginsCollection pcm(u"e1"_s, false);
    window->newCollectionPage(&pcm);
    QVERIFY(offer()->isHidden());
    window->rmCollectionPages({&pcm});
}

void NavigationTest::settingsPluginIsChosenByKeys() {
    offerTwo();
    QTest::keyClick(offer()->focusWidget(), Qt::Key_Down);
    QTest::keyClick(offer()->focusWidget(), Qt::Key_Return);
    QVERIFY(offer()->isHidden());
    QCOMPARE(shownName(), u"window beta"_s);
}

void NavigationTest::unloadingAnOfferedPluginLeavesItsButton() {
    config.setCollection(u"zr"_s, u""_s);
    config.setCollection(u"e1"_s, u"alpha beta gamma"_s);
    config.set(u"alpha/settings"_s, u"gamma beta"_s);
    restart(480);
    PluginsCollection pcm(u"e1"_s, false);
    window->newCollectionPage(&pcm);
    clickIcon(*window, "icon alpha");
    pressSettings();
    window->rmCollectionPages({&pcm});
    QVERIFY(!isMapped(u"gamma"_s));
    QVERIFY(offer()->isHidden());
    offer()->show();
    QTest::mouseClick(offered(0), Qt::LeftButton);
    QVERIFY(offer()->isHidden());
    QCOMPARE(shownName(), u"pageLauncher"_s);
}

void NavigationTest::backFromSettingsReturnsToTheCaller() {
    clickIcon(*window, "icon alpha");
    pressSettings();
    back();
    QCOMPARE(shownName(), u"window alpha"_s);
    back();
    QCOMPARE(shownName(), u"pageLauncher"_s);
}

void NavigationTest::secondPressOnSettingsKeepsTheFirstCaller() {
    clickIcon(*window, "icon alpha");
    pressSettings();
    QVERIFY(find(*window, "labelSettings")->isVisible());
    pressSettings();
    QCOMPARE(shownName(), u"window gamma"_s);
    back();
    QCOMPARE(shownName(), u"window alpha"_s);
}

void NavigationTest::newCollectionForgetsTheCaller() {
    clickIcon(*window, "icon alpha");
    pressSettings();
    PluginsCollection pcm(u"e1"_s, false);
    window->newCollectionPage(&pcm);
    window->rmCollectionPages({&pcm});
    clickIcon(*window, "icon gamma");
    QVERIFY(find(*window, "labelSettings")->isHidden());
    back();
    QCOMPARE(shownName(), u"pageLauncher"_s);
}

void NavigationTest::windowThatDeletesItselfLeadsHome() {
    clickIcon(*window, "icon beta");
    window->goHome();
    clickIcon(*window, "icon alpha");
    delete shown();
    QCOMPARE(shownName(), u"pageLauncher"_s);
    QVERIFY(header()->backButton()->isHidden());
    QVERIFY(find(*window, "labelReport")->isHidden());
    QCOMPARE(header()->text(), u"Settings"_s);
}

void NavigationTest::homeForgetsTheCaller() {
    clickIcon(*window, "icon alpha");
    pressSettings();
    window->goHome();
    QCOMPARE(shownName(), u"pageLauncher"_s);
    clickIcon(*window, "icon gamma");
    back();
    QCOMPARE(shownName(), u"pageLauncher"_s);
}

void NavigationTest::settingsLabelIsShownOnlyWhereItLeadsSomewhere() {
    clickIcon(*window, "icon gamma");
    QVERIFY(find(*window, "labelSettings")->isHidden());
    clickIcon(*window, "icon beta");
    QVERIFY(find(*window, "labelSettings")->isVisible());
}

void NavigationTest::captionFollowsOnlyTheShownWindow() {
    clickIcon(*window, "icon alpha");
    auto *const alpha = qobject_cast<PluginWindow *>(shown());
    emit alpha->setTitle(u"Running"_s);
    QCOMPARE(header()->text(), u"Running"_s);
    clickIcon(*window, "icon beta");
    emit alpha->setTitle(u"Done"_s);
    QCOMPARE(header()->text(), u"Title of beta"_s);
}

void NavigationTest::backTextFollowsOnlyTheShownWindow() {
    clickIcon(*window, "icon alpha");
    auto *const alpha = qobject_cast<PluginWindow *>(shown());
    emit alpha->setBackButtonText(u"Table"_s);
    QCOMPARE(header()->backButton()->text(), u"\u25C4 Table"_s);
    emit alpha->setBackButtonText(u"default"_s);
    QCOMPARE(header()->backButton()->text(), u"\u25C4 Settings"_s);
    clickIcon(*window, "icon beta");
    emit alpha->setBackButtonText(u"Table"_s);
    QCOMPARE(header()->backButton()->text(), u"\u25C4 Settings"_s);
}

void NavigationTest::saveAndLoadReachTheCurrentKeeper() {
    auto *const keeper = plugin(u"alpha"_s)->keeper();
    keeper->setProperty("canBeSaved", true);
    keeper->setProperty("canBeLoaded", true);
    clickIcon(*window, "icon alpha");
    StatusPanel *const panel = window->findChild<PopupLabel *>()->panel();
    panel->show();
    reportButton(0)->click();
    QCOMPARE(keeper->property("saves").toInt(), 1);
    QVERIFY(panel->isHidden());
    reportButton(1)->click();
    QCOMPARE(keeper->property("loads").toInt(), 1);
}

void NavigationTest::saveAndLoadAreEnabledByTheCurrentKeeper() {
    auto *const alpha = plugin(u"alpha"_s)->keeper();
    auto *const beta = plugin(u"beta"_s)->keeper();
    alpha->setProperty("canBeSaved", true);
    clickIcon(*window, "icon beta");
    clickIcon(*window, "icon alpha");
    QVERIFY(find(*window, "labelReport")->isVisible());
    QVERIFY(reportButton(0)->isEnabled());
    QVERIFY(!reportButton(1)->isEnabled());

    QMetaObject::invokeMethod(alpha, "canbeSaved", Q_ARG(bool, false));
    QMetaObject::invokeMethod(alpha, "canbeLoaded", Q_ARG(bool, true));
    QVERIFY(!reportButton(0)->isEnabled());
    QVERIFY(reportButton(1)->isEnabled());

    // The keeper of a window in the background has no say.
    QMetaObject::invokeMethod(beta, "canbeSaved", Q_ARG(bool, true));
    QMetaObject::invokeMethod(beta, "canbeLoaded", Q_ARG(bool, false));
    QVERIFY(!reportButton(0)->isEnabled());
    QVERIFY(reportButton(1)->isEnabled());
}

void NavigationTest::collectionSwitchLeadsHome() {
    clickIcon(*window, "icon alpha");
    PluginsCollection pcm(u"e1"_s, false);
    window->newCollectionPage(&pcm);
    QCOMPARE(shownName(), u"pageLauncher"_s);
    QCOMPARE(header()->text(), u"PCM"_s);
    window->rmCollectionPages({&pcm});
}

void NavigationTest::pluginMayKeepNewCardsFromTakingTheScreen() {
    clickIcon(*window, "icon alpha");
    plugin(u"alpha"_s)->setProperty("cardInsertionPersistent", true);
    PluginsCollection pcm(u"e1"_s, false);
    window->newCollectionPage(&pcm);
    QCOMPARE(shownName(), u"window alpha"_s);
    QCOMPARE(header()->text(), u"Title of alpha"_s);
    window->rmCollectionPages({&pcm});
}

void NavigationTest::unloadingTheShownPluginLeadsHome() {
    config.setCollection(u"e1"_s, u"tall"_s);
    config.addPlugin(u"tall"_s, {.file = u"libtall.so"_s});
    PluginsCollection pcm(u"e1"_s, false);
    window->newCollectionPage(&pcm);
    clickIcon(*window, "icon tall");
    QCOMPARE(shownName(), u"window tall"_s);
    pcm.unload();
    QCOMPARE(shownName(), u"pageLauncher"_s);
    QVERIFY(!isMapped(u"tall"_s));
    window->rmCollectionPages({&pcm});
}

QTEST_MAIN(NavigationTest)
#include "tst_navigation.moc"
