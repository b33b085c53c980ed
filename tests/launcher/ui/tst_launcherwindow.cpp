// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherfixture.h"

#include "plugins/pluginscollection.h"
#include "ui/launcherheader.h"

#include <checkbutton.h>
#include <controlbottompanel.h>
#include <ledpanel.h>
#include <plainline.h>
#include <popuplabel.h>
#include <statuspanel.h>
#include <timebutton.h>

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QRegularExpression>
#include <QStackedLayout>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A collection without plug-ins that tells what the window asks of it.
class SpyCollection : public PluginsCollection {
public:
    explicit SpyCollection(const QString &name, bool persistent = false)
        : PluginsCollection(name, persistent) {}

    bool enter() override {
        calls.append(u"enter"_s);
        return isOpen;
    }
    void connectLeds() override { calls.append(u"connectLeds"_s); }
    void disconnectLeds() override { calls.append(u"disconnectLeds"_s); }
    void resetLeds() override { calls.append(u"resetLeds"_s); }

    QStringList calls;
    bool isOpen = true;
};

} // namespace

/// The window's own parts, and collections coming and going.
class LauncherWindowTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { window.reset(); }

    void windowIsTheOneInstanceWhileItLives();
    void headerLinesAndColumnStandInTheirPlaces();
    void reportPanelHasCaptionAndButtons();
    void iconPageHasFiveRowsOfTwo();
    void collectionGetsItsLabel_data();
    void collectionGetsItsLabel();
    void settingsButtonStandsAtTheRightEnd();
    void newCollectionTakesTheScreen();
    void newCollectionDoesNotDisturbAPersistentActiveWindow();
    void selectorButtonSwitchesTheCollection();
    void ledsAreHandedOverFromCollectionToCollection();
    void refusedCollectionChangesNothing();
    void pressOnTheLedsResetsThoseOfTheCurrentCollection();
    void removingTheCurrentCollectionShowsTheFirstRemaining();
    void removingAnotherCollectionLeavesTheScreen();
    void persistentCollectionsAreNotRemoved();
    void persistentCollectionTakesTheScreenWhenTheOthersAreGone();
    void ledNamesReplaceEachOther();
    void tallIconTakesThePlacesOfThreePlaceholders();
    void infoPanelOpensOnlyWhenItHoldsSomething();
    void prefixOfMeasurementTitlesIsTheLabel();
    void longTitlesDoNotWidenTheWindow();
    void longTitleLeavesBackAndClockAlone();
    void windowKeepsTheScreensSizeWhateverIsShown_data();
    void windowKeepsTheScreensSizeWhateverIsShown();

private:
    QString caption() const { return window->findChild<LauncherHeader *>()->text(); }
    CheckButton *selector(const QString &text) const;
    QWidget *currentPage() const {
        return find(*window, "pageLauncher")->findChild<QStackedLayout *>()->currentWidget();
    }

    TestConfig config;
    std::unique_ptr<LauncherWindow> window;
};

void LauncherWindowTest::init() {
    QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s));
    config = TestConfig();
    configurePlugins(config, {u"alpha"_s});
    window = std::make_unique<LauncherWindow>();
    window->resize(800, 480);
}

CheckButton *LauncherWindowTest::selector(const QString &text) const {
    for (CheckButton *const button : window->findChildren<CheckButton *>()) {
        if (button->text() == text)
            return button;
    }
    return nullptr;
}

void LauncherWindowTest::windowIsTheOneInstanceWhileItLives() {
    QCOMPARE(LauncherWindow::instance(), window.get());
    window.reset();
    QCOMPARE(LauncherWindow::instance(), nullptr);
}

void LauncherWindowTest::headerLinesAndColumnStandInTheirPlaces() {
    const auto *const mainLayout = qobject_cast<QVBoxLayout *>(window->layout());
    QVERIFY(qobject_cast<LauncherHeader *>(mainLayout->itemAt(0)->widget()));
    QVERIFY(qobject_cast<PlainLine *>(mainLayout->itemAt(1)->widget()));
    const auto *const row = qobject_cast<QHBoxLayout *>(mainLayout->itemAt(2)->layout());
    QVERIFY(qobject_cast<PlainLine *>(row->itemAt(1)->widget()));
    QCOMPARE(row->stretch(0), 2);
    QCOMPARE(row->stretch(1), 0);
    QCOMPARE(row->stretch(2), 19);
    QVERIFY(window->windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(window->testAttribute(Qt::WA_WindowPropagation));
    QVERIFY(window->autoFillBackground());
    QCOMPARE(window->property("palette_id").toString(), u"GenericWindow"_s);
}

void LauncherWindowTest::reportPanelHasCaptionAndButtons() {
    const StatusPanel *const panel = window->findChild<PopupLabel *>()->panel();
    QVERIFY(panel->findChild<QLabel *>());
    QCOMPARE(panel->findChild<QLabel *>()->text(), u"Report"_s);
    QCOMPARE(panel->findChild<QLabel *>()->alignment() & Qt::AlignHCenter, Qt::AlignHCenter);
    const auto buttons = panel->findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 2);
    QCOMPARE(buttons[0]->text(), u"Save"_s);
    QCOMPARE(buttons[1]->text(), u"Load"_s);
    QCOMPARE(buttons[0]->minimumHeight(), 52);
    QCOMPARE(buttons[1]->minimumHeight(), 52);
}

void LauncherWindowTest::iconPageHasFiveRowsOfTwo() {
    const auto *const grid = qobject_cast<QGridLayout *>(currentPage()->layout());
    QCOMPARE(grid->rowCount(), 5);
    QCOMPARE(grid->columnCount(), 2);
    QCOMPARE(grid->itemAtPosition(0, 0)->widget()->objectName(), u"icon alpha"_s);
}

void LauncherWindowTest::collectionGetsItsLabel_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("label");
    QTest::newRow("e1") << u"e1"_s << u"PCM"_s;
    QTest::newRow("sa") << u"sa"_s << u"Signaling"_s;
    QTest::newRow("da") << u"da"_s << u"Datacom"_s;
    QTest::newRow("otdr") << u"otdr"_s << u"OTDR"_s;
    QTest::newRow("gbe") << u"gbe"_s << u"GbE"_s;
    QTest::newRow("zr") << u"zr"_s << u"Settings"_s;
    QTest::newRow("line break") << u"sig3"_s << u"Network\nTools"_s;
    QTest::newRow("case does not matter") << u"OTDR"_s << u"OTDR"_s;
    QTest::newRow("unknown name has none") << u"xyz"_s << QString();
    QTest::newRow("nameless") << QString() << QString();
}

void LauncherWindowTest::collectionGetsItsLabel() {
    QFETCH(QString, name);
    PluginsCollection collection(name, false);
    QTEST(window->cardType(&collection), "label");
}

void LauncherWindowTest::settingsButtonStandsAtTheRightEnd() {
    SpyCollection pcm(u"e1"_s);
    SpyCollection otdr(u"otdr"_s);
    window->newCollectionPage(&pcm);
    window->newCollectionPage(&otdr);
    window->show();
    QVERIFY(selector(u"PCM"_s)->x() < selector(u"OTDR"_s)->x());
    QVERIFY(selector(u"OTDR"_s)->x() < selector(u"Settings"_s)->x());
    window->rmCollectionPages({&pcm, &otdr});
}

void LauncherWindowTest::newCollectionTakesTheScreen() {
    QCOMPARE(caption(), u"Settings"_s);
    SpyCollection pcm(u"e1"_s);
    window->newCollectionPage(&pcm);
    QCOMPARE(caption(), u"PCM"_s);
    QVERIFY(selector(u"PCM"_s)->isChecked());
    QVERIFY(!selector(u"Settings"_s)->isChecked());
    QCOMPARE(pcm.calls, QStringList({u"enter"_s, u"connectLeds"_s}));
    window->rmCollectionPages({&pcm});
}

void LauncherWindowTest::newCollectionDoesNotDisturbAPersistentActiveWindow() {
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    window->setProperty("cardInsertionPersistent", true);
    SpyCollection pcm(u"e1"_s);
    window->newCollectionPage(&pcm);
    QCOMPARE(caption(), u"Settings"_s);
    QVERIFY(selector(u"PCM"_s));
    QVERIFY(!selector(u"PCM"_s)->isChecked());
    QCOMPARE(pcm.calls, QStringList());

    window->setProperty("cardInsertionPersistent", false);
    SpyCollection otdr(u"otdr"_s);
    window->newCollectionPage(&otdr);
    QCOMPARE(caption(), u"OTDR"_s);
    window->rmCollectionPages({&pcm, &otdr});
}

void LauncherWindowTest::selectorButtonSwitchesTheCollection() {
    SpyCollection pcm(u"e1"_s);
    window->newCollectionPage(&pcm);
    QWidget *const pcmPage = currentPage();
    selector(u"Settings"_s)->click();
    QCOMPARE(caption(), u"Settings"_s);
    QVERIFY(currentPage() != pcmPage);
    selector(u"PCM"_s)->click();
    QCOMPARE(caption(), u"PCM"_s);
    QCOMPARE(currentPage(), pcmPage);
    window->rmCollectionPages({&pcm});
}

void LauncherWindowTest::ledsAreHandedOverFromCollectionToCollection() {
    SpyCollection pcm(u"e1"_s);
    SpyCollection otdr(u"otdr"_s);
    window->newCollectionPage(&pcm);
    pcm.calls.clear();
    window->newCollectionPage(&otdr);
    QCOMPARE(pcm.calls, QStringList{u"disconnectLeds"_s});
    QCOMPARE(otdr.calls, QStringList({u"enter"_s, u"connectLeds"_s}));
    window->rmCollectionPages({&pcm, &otdr});
}

void LauncherWindowTest::refusedCollectionChangesNothing() {
    SpyCollection pcm(u"e1"_s);
    window->newCollectionPage(&pcm);
    selector(u"Settings"_s)->click();
    pcm.calls.clear();
    pcm.isOpen = false;
    QWidget *const before = currentPage();
    selector(u"PCM"_s)->click();
    QCOMPARE(pcm.calls, QStringList{u"enter"_s});
    QCOMPARE(caption(), u"Settings"_s);
    QCOMPARE(currentPage(), before);
    QVERIFY(selector(u"Settings"_s)->isChecked());
    QVERIFY(!selector(u"PCM"_s)->isChecked());
    window->rmCollectionPages({&pcm});
}

void LauncherWindowTest::pressOnTheLedsResetsThoseOfTheCurrentCollection() {
    SpyCollection pcm(u"e1"_s);
    window->newCollectionPage(&pcm);
    pcm.calls.clear();
    emit window->findChild<LedPanel *>()->clicked();
    QCOMPARE(pcm.calls, QStringList{u"resetLeds"_s});
    window->rmCollectionPages({&pcm});
}

void LauncherWindowTest::removingTheCurrentCollectionShowsTheFirstRemaining() {
    SpyCollection pcm(u"e1"_s);
    SpyCollection otdr(u"otdr"_s);
    SpyCollection gbe(u"gbe"_s);
    for (SpyCollection *const collection : {&pcm, &gbe, &otdr})
        window->newCollectionPage(collection);
    window->rmCollectionPages({&otdr});
    QVERIFY(!selector(u"OTDR"_s));
    // The one that lies lowest in memory; the instrument's own may lie lower than both.
    const bool pcmIsFirst = std::less<const PluginsCollection *>()(&pcm, &gbe);
    if (caption() != "Settings"_L1)
        QCOMPARE(caption(), pcmIsFirst ? u"PCM"_s : u"GbE"_s);
    QVERIFY(selector(caption())->isChecked());
    window->rmCollectionPages({&pcm, &gbe});
    QCOMPARE(caption(), u"Settings"_s);
}

void LauncherWindowTest::removingAnotherCollectionLeavesTheScreen() {
    SpyCollection pcm(u"e1"_s);
    SpyCollection otdr(u"otdr"_s);
    window->newCollectionPage(&pcm);
    window->newCollectionPage(&otdr);
    otdr.calls.clear();
    window->rmCollectionPages({&pcm});
    QCOMPARE(caption(), u"OTDR"_s);
    QCOMPARE(otdr.calls, QStringList());
    window->rmCollectionPages({&otdr});
}

void LauncherWindowTest::persistentCollectionsAreNotRemoved() {
    SpyCollection pcm(u"e1"_s, true);
    window->newCollectionPage(&pcm);
    window->rmCollectionPages({&pcm});
    QCOMPARE(caption(), u"PCM"_s);
    QVERIFY(selector(u"PCM"_s));
    window.reset();
}

void LauncherWindowTest::persistentCollectionTakesTheScreenWhenTheOthersAreGone() {
    config.setPersistent(u"e1"_s);
    window = std::make_unique<LauncherWindow>();
    SpyCollection otdr(u"otdr"_s);
    window->newCollectionPage(&otdr);
    QCOMPARE(caption(), u"OTDR"_s);
    window->rmCollectionPages({&otdr});
    QCOMPARE(caption(), u"PCM"_s);
}

void LauncherWindowTest::ledNamesReplaceEachOther() {
    window->show();
    auto *const leds = window->findChild<LedPanel *>();
    const QImage empty = leds->grab().toImage();
    window->setupLeds({u"LOS"_s, u"AIS"_s});
    const QImage two = leds->grab().toImage();
    QVERIFY(two != empty);
    QList<QPair<QString, QString>> states{{u"LOS"_s, u"present"_s}};
    window->updateLeds(states);
    QVERIFY(leds->grab().toImage() != two);
    window->setupLeds({});
    QCOMPARE(leds->grab().toImage(), empty);
}

void LauncherWindowTest::tallIconTakesThePlacesOfThreePlaceholders() {
    config = TestConfig();
    configurePlugins(config, {u"tall"_s});
    config.set(u"tall/row"_s, 2);
    window = std::make_unique<LauncherWindow>();
    const auto *const grid = qobject_cast<QGridLayout *>(currentPage()->layout());
    QWidget *const icon = find(*window, "icon tall");
    for (const int row : {1, 2, 3})
        QCOMPARE(grid->itemAtPosition(row, 0)->widget(), icon);
    QVERIFY(grid->itemAtPosition(0, 0)->widget() != icon);
    QVERIFY(grid->itemAtPosition(4, 0)->widget() != icon);
    QCOMPARE(grid->count(), 8);
}

void LauncherWindowTest::infoPanelOpensOnlyWhenItHoldsSomething() {
    window->show();
    SpyCollection pcm(u"e1"_s);
    window->newCollectionPage(&pcm);
    window->toggleInfoPanel();
    for (const StatusPanel *const panel : window->findChildren<StatusPanel *>())
        QVERIFY(panel->isHidden());

    selector(u"Settings"_s)->click();
    window->toggleInfoPanel();
    auto *const panel = qobject_cast<StatusPanel *>(find(*window, "status alpha")->parentWidget());
    QVERIFY(panel->isVisible());
    window->toggleInfoPanel();
    QVERIFY(panel->isHidden());
    window->rmCollectionPages({&pcm});
}

void LauncherWindowTest::prefixOfMeasurementTitlesIsTheLabel() {
    QCOMPARE(window->measTitlePrefix(), u"Settings: "_s);
    QCOMPARE(window->getStackedWidget(), find<QStackedWidget>(*window, "stackedWidget"));
}

void LauncherWindowTest::longTitlesDoNotWidenTheWindow() {
    window->show();
    window->setCaption(QString(200, u'W'));
    QCOMPARE(window->size(), QSize(800, 480));
    QVERIFY(window->minimumSizeHint().width() <= 800);
}

void LauncherWindowTest::longTitleLeavesBackAndClockAlone() {
    window->show();
    auto *const header = window->findChild<LauncherHeader *>();
    header->setBackButtonText(u"PCM"_s);
    QCoreApplication::processEvents();
    const auto clock = header->findChild<TimeButton *>();
    const auto pictureOf = [header](const QWidget *part) { return header->grab(part->geometry()).toImage(); };
    header->setText(QString());
    const QImage back = pictureOf(header->backButton());
    const QImage time = pictureOf(clock);
    const QImage before = header->grab().toImage();
    header->setText(QString(200, u'W'));
    QVERIFY(header->grab().toImage() != before);
    QCOMPARE(pictureOf(header->backButton()), back);
    QCOMPARE(pictureOf(clock), time);
    header->setBackButtonText(QString(200, u'W'));
    QCoreApplication::processEvents();
    QVERIFY(header->backButton()->width() <= 300);
}

void LauncherWindowTest::windowKeepsTheScreensSizeWhateverIsShown_data() {
    QTest::addColumn<QSize>("wanted");
    QTest::addColumn<int>("row");
    QTest::newRow("wide icon") << QSize(4000, 50) << 0;
    QTest::newRow("high icon") << QSize(50, 4000) << 0;
    QTest::newRow("icon in the tenth row") << QSize(50, 50) << 9;
}

void LauncherWindowTest::windowKeepsTheScreensSizeWhateverIsShown() {
    QFETCH(QSize, wanted);
    QFETCH(int, row);
    window->show();
    SpyCollection pcm(u"e1"_s);
    window->newCollectionPage(&pcm);
    QWidget icon;
    icon.setMinimumSize(wanted);
    window->addIcon(&pcm, &icon, row, 0);
    QCoreApplication::processEvents();
    QCOMPARE(window->size(), QSize(800, 480));
    QVERIFY(selector(u"PCM"_s)->geometry().bottom() < 480);
    QCOMPARE(window->findChild<LauncherHeader *>()->width(), 800);
    window->removeIcon(&pcm, &icon);
    window->rmCollectionPages({&pcm});
}

QTEST_MAIN(LauncherWindowTest)
#include "tst_launcherwindow.moc"
