// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/cardsmanager.h"

#include "plugins/pluginscollection.h"
#include "ui/launcherwindow.h"

#include "errorstream.h"
#include "testconfig.h"

#include <checkbutton.h>

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The manager creates the persistent collections while the window is being made, so the window shows them.
class CardsManagerTest : public QObject {
    Q_OBJECT

private slots:
    void init() { config = TestConfig(); }

    void everyNameGetsItsPageInTheOrderWritten_data();
    void everyNameGetsItsPageInTheOrderWritten();
    void absentEntryMakesOneNamelessCollectionWithoutAMessage();
    void cardCollectionsBelongToTheManager();

private:
    static QStringList selectorTexts(const LauncherWindow &window) {
        QStringList texts;
        for (const CheckButton *const button : window.findChildren<CheckButton *>())
            texts.append(button->text());
        texts.sort();
        return texts;
    }

    TestConfig config;
};

void CardsManagerTest::everyNameGetsItsPageInTheOrderWritten_data() {
    QTest::addColumn<QString>("persistent");
    QTest::addColumn<QStringList>("labels");
    QTest::newRow("the instrument's own") << u"zr"_s << QStringList{u"Settings"_s};
    QTest::newRow("the instrument's and a card's") << u"zr e1"_s << QStringList{u"PCM"_s, u"Settings"_s};
    QTest::newRow("unknown name has no label") << u"xyz"_s << QStringList{QString()};
    QTest::newRow("two blanks make a nameless one")
        << u"e1  da"_s << QStringList{QString(), u"Datacom"_s, u"PCM"_s};
    QTest::newRow("repeated name keeps both pages") << u"e1 e1"_s << QStringList{u"PCM"_s, u"PCM"_s};
}

void CardsManagerTest::everyNameGetsItsPageInTheOrderWritten() {
    QFETCH(QString, persistent);
    config.setPersistent(persistent);
    const LauncherWindow window;
    QTEST(selectorTexts(window), "labels");
}

void CardsManagerTest::absentEntryMakesOneNamelessCollectionWithoutAMessage() {
    config.set(u"paths/main"_s, u"reports"_s);
    ErrorStream errors;
    const LauncherWindow window;
    QCOMPARE(selectorTexts(window), QStringList{QString()});
    // The collection itself finds nothing to load; the manager adds no message of its own.
    QCOMPARE(
        errors.take().count("no plugins can be loaded because no proper settings in configuration file."), 1);
}

void CardsManagerTest::cardCollectionsBelongToTheManager() {
    config.setPersistent(u"zr e1"_s);
    const LauncherWindow window;
    QStringList owned;
    for (const PluginsCollection *const collection :
         window.findChild<CardsManager *>()->findChildren<PluginsCollection *>())
        owned.append(collection->name());
    QCOMPARE(owned, QStringList{u"e1"_s});
}

QTEST_MAIN(CardsManagerTest)
#include "tst_cardsmanager.moc"
