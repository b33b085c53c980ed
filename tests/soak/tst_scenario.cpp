// SPDX-License-Identifier: GPL-3.0-or-later
#include "scenario.h"

#include <QSet>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

QList<Action> actionsOf(quint32 seed, int count) {
    Scenario scenario(seed);
    QList<Action> actions;
    for (int i = 0; i < count; ++i)
        actions.append(scenario.next());
    return actions + scenario.ending();
}

} // namespace

class ScenarioTest : public QObject {
    Q_OBJECT

private slots:
    void sameSeedYieldsTheSameActions();
    void otherSeedYieldsOthers();
    void firstActionsOfASeedNeverChange();
    void everyKindOfActionComesUp();
    void onlyWhatIsThereIsTakenAway();
    void endingLeavesNothing();
};

void ScenarioTest::sameSeedYieldsTheSameActions() {
    QCOMPARE(actionsOf(42, 5000), actionsOf(42, 5000));
}

void ScenarioTest::otherSeedYieldsOthers() {
    QVERIFY(actionsOf(42, 100) != actionsOf(43, 100));
}

void ScenarioTest::firstActionsOfASeedNeverChange() {
    // A seed that was noted on another machine has to lead to the same place.
    QStringList texts;
    for (const Action &action : actionsOf(1, 5).first(5))
        texts.append(action.text());
    QCOMPARE(texts, QStringList({u"open settings"_s, u"fail mount 1"_s, u"fail mount 32"_s,
                                 u"refuse export sdb1"_s, u"show page 0"_s}));
}

void ScenarioTest::everyKindOfActionComesUp() {
    QSet<int> kinds;
    for (const Action &action : actionsOf(7, 1000))
        kinds.insert(action.kind);
    QCOMPARE(kinds.size(), Action::kinds);
}

void ScenarioTest::onlyWhatIsThereIsTakenAway() {
    for (quint32 seed = 0; seed < 50; ++seed) {
        QSet<QString> cards;
        int reports = 0;
        for (const Action &action : actionsOf(seed, 1000)) {
            const QString card = action.words.value(0) + u'-' + action.words.value(1);
            if (action.kind == Action::InsertCard) {
                QVERIFY(!cards.contains(card));
                cards.insert(card);
            } else if (action.kind == Action::RemoveCard) {
                QVERIFY(cards.remove(action.words.first()));
            } else if (action.kind == Action::RaiseAlarm || action.kind == Action::EndAlarm) {
                QVERIFY(cards.contains(action.words.first()));
            } else if (action.kind == Action::SaveReport) {
                ++reports;
            } else if (action.kind == Action::ReadReport) {
                QVERIFY(action.words.first().toInt() < reports);
            } else if (action.kind == Action::DeleteReport) {
                QVERIFY(reports-- > 0);
            }
        }
    }
}

void ScenarioTest::endingLeavesNothing() {
    Scenario scenario(3);
    for (int i = 0; i < 500; ++i)
        scenario.next();
    const QList<Action> ending = scenario.ending();
    QVERIFY(ending.size() > 1);
    QCOMPARE(scenario.pages(), 1);
    QCOMPARE(scenario.reports(), 0);
    QCOMPARE(scenario.ending().size(), 1);
}

QTEST_APPLESS_MAIN(ScenarioTest)
#include "tst_scenario.moc"
