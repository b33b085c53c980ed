// SPDX-License-Identifier: GPL-3.0-or-later
#include "holdings.h"
#include "instrument.h"

#include <QDeadlineTimer>
#include <QRandomGenerator>
#include <QTest>

#include <chrono>
#include <functional>
#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Enough for every kind of action to come up.
constexpr int warmUpActions = 250;
/// Then everything is taken away, and what is held is looked at in between.
constexpr int actionsBetweenLooks = 2'500;
constexpr qint64 mebibyte = 1024 * 1024;
/// Of a run that is over before the first look, and of a longer one: the cache of scaled icons fills, fonts are kept.
constexpr qint64 mostGrowthAtOnce = mebibyte;
constexpr qint64 mostGrowth = 4 * mebibyte;
constexpr quint32 usualSeed = 1;
constexpr int longestRestMs = 20'000;
/// Of an action, on average.
constexpr auto longestAction = 5s;

std::chrono::minutes duration() {
    return std::chrono::minutes(qMax(1, qEnvironmentVariableIntValue("ZR_SOAK_MINUTES")));
}

/// 0 where the time decides.
int wantedActions() {
    return qEnvironmentVariableIntValue("ZR_SOAK_ACTIONS");
}

/// Always the same in the suite; a longer run goes where none has been.
quint32 chosenSeed() {
    if (qEnvironmentVariableIsSet("ZR_SOAK_SEED"))
        return qEnvironmentVariable("ZR_SOAK_SEED").toUInt();
    return qEnvironmentVariableIsSet("ZR_SOAK_MINUTES") ? QRandomGenerator::system()->generate() : usualSeed;
}

std::optional<Holdings> holdingsIn(const QStringList &numbers) {
    if (numbers.size() != 6)
        return std::nullopt;
    const auto number = [&](qsizetype index) { return numbers.at(index).toLongLong(); };
    return Holdings{{number(0), number(1), number(2), number(3)}, number(4), number(5)};
}

} // namespace

/// Somebody uses the installed launcher for a long time, in an order that the seed decides, and leaves it as it was found:
/// then it holds what it held.
///
/// ZR_SOAK_SEED is which order, ZR_SOAK_MINUTES (1) how long, or ZR_SOAK_ACTIONS how many actions.
class LauncherSoakTest : public QObject {
    Q_OBJECT

public:
    /// QtTest ends a test that takes too long, and warm-up and rest take their time too.
    static void initMain() {
        const std::chrono::milliseconds longest = duration() + wantedActions() * longestAction + 5min;
        qputenv("QTEST_FUNCTION_TIMEOUT", QByteArray::number(qint64(longest.count())));
    }

private slots:
    void longUseLeavesNothingBehind();
    void cleanup();

private:
    QString perform(const Action &action);
    QString performAll(const QList<Action> &actions);
    /// In the end, takes away what was inserted and saved.
    QString performWhile(const std::function<bool()> &goesOn);
    QString leave();
    QString lookInBetween();
    /// Once nothing is under way and the counts stay as they are; where `expected` is given, once they are those, or too late.
    std::optional<Holdings> restingHoldings(const std::optional<Holdings> &expected = {});

    Scenario scenario{chosenSeed()};
    Instrument instrument;
    int actionCount = 0;
    /// Those that the seed chose, and what came before them: after as many a replay is where this one was.
    int chosenCount = 0;
    int chosenSinceALook = 0;
    int looks = 0;
};

/// However it went: what leads to the same place again.
void LauncherSoakTest::cleanup() {
    qInfo("ZR_SOAK_SEED=%u ZR_SOAK_ACTIONS=%d", scenario.seed(), chosenCount);
}

QString LauncherSoakTest::perform(const Action &action) {
    ++actionCount;
    const QString error = instrument.perform(action);
    return error.isEmpty() ? error : u"action %1, %2: %3"_s.arg(actionCount).arg(action.text(), error);
}

QString LauncherSoakTest::performAll(const QList<Action> &actions) {
    for (const Action &action : actions) {
        if (const QString error = perform(action); !error.isEmpty())
            return error;
    }
    return {};
}

QString LauncherSoakTest::performWhile(const std::function<bool()> &goesOn) {
    while (goesOn()) {
        QString error = perform(scenario.next());
        chosenCount = actionCount;
        if (error.isEmpty())
            error = instrument.differenceFrom(scenario.reports());
        if (error.isEmpty() && ++chosenSinceALook == actionsBetweenLooks)
            error = lookInBetween();
        if (!error.isEmpty())
            return error;
    }
    return leave();
}

QString LauncherSoakTest::lookInBetween() {
    chosenSinceALook = 0;
    ++looks;
    if (const QString error = leave(); !error.isEmpty())
        return error;
    const std::optional<Holdings> holdings = restingHoldings();
    if (!holdings)
        return u"it does not come to rest"_s;
    qInfo("after %d actions %.2f MiB resident, %.2f MiB in use", actionCount,
          static_cast<double>(holdings->residentBytes) / mebibyte,
          static_cast<double>(holdings->allocatedBytes) / mebibyte);
    return {};
}

QString LauncherSoakTest::leave() {
    const QString error = performAll(scenario.ending());
    return error.isEmpty() ? instrument.differenceFrom(scenario.reports()) : error;
}

std::optional<Holdings> LauncherSoakTest::restingHoldings(const std::optional<Holdings> &expected) {
    const auto read = [this] { return holdingsIn(instrument.launcher().holdings()); };
    std::optional<Holdings> holdings = read();
    // The last words of a card, the end of an interrupted copy and whatever is deleted later take their time.
    const bool rests = QTest::qWaitFor(
        [&] {
            const std::optional<Holdings> earlier = std::exchange(holdings, read());
            return !instrument.launcher().hasChildren() && earlier && holdings &&
                   earlier->counts == holdings->counts && (!expected || holdings->counts == expected->counts);
        },
        longestRestMs);
    return rests || expected ? holdings : std::nullopt;
}

void LauncherSoakTest::longUseLeavesNothingBehind() {
    qInfo("ZR_SOAK_SEED=%u", scenario.seed());
    QString error = instrument.switchOn();
    QVERIFY2(error.isEmpty(), qPrintable(error));
    // Each window stays from its first use on.
    error = performAll(scenario.everyWindow());
    QVERIFY2(error.isEmpty(), qPrintable(error));
    error = performWhile([this] { return actionCount < warmUpActions; });
    QVERIFY2(error.isEmpty(), qPrintable(error));
    const std::optional<Holdings> before = restingHoldings();
    QVERIFY(before);

    const QDeadlineTimer end(duration());
    error =
        performWhile([&] { return wantedActions() > 0 ? actionCount < wantedActions() : !end.hasExpired(); });
    QVERIFY2(error.isEmpty(), qPrintable(error));
    const std::optional<Holdings> after = restingHoldings(before);
    QVERIFY(after);
    error = differenceBetween(*before, *after, looks == 0 ? mostGrowthAtOnce : mostGrowth);
    QVERIFY2(error.isEmpty(), qPrintable(error));
}

QTEST_GUILESS_MAIN(LauncherSoakTest)
#include "tst_launchersoak.moc"
