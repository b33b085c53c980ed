// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument.h"

#include <QDeadlineTimer>
#include <QRandomGenerator>
#include <QTest>

#include <chrono>
#include <functional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Enough for every kind of action to come up.
constexpr int warmUpActions = 250;
constexpr qint64 mostGrowthBytes = 4 * 1024 * 1024;
constexpr quint32 usualSeed = 1;
constexpr int longestRestMs = 20'000;
/// How many of the holdings are counted, and must be the same again.
constexpr qsizetype counted = 4;
constexpr qsizetype matchRules = 3;

std::chrono::minutes duration() {
    return std::chrono::minutes(qMax(1, qEnvironmentVariableIntValue("ZR_SOAK_MINUTES")));
}

/// Always the same in the suite; a longer run goes where none has been.
quint32 chosenSeed() {
    if (qEnvironmentVariableIsSet("ZR_SOAK_SEED"))
        return qEnvironmentVariable("ZR_SOAK_SEED").toUInt();
    return qEnvironmentVariableIsSet("ZR_SOAK_MINUTES") ? QRandomGenerator::system()->generate() : usualSeed;
}

} // namespace

/// Somebody uses the installed launcher for a long time, in an order that the seed decides, and leaves it as it was found:
/// then it holds what it held.
///
/// ZR_SOAK_MINUTES (1) is how long, ZR_SOAK_SEED which order.
class LauncherSoakTest : public QObject {
    Q_OBJECT

public:
    /// QtTest ends a test that takes too long, and warm-up and rest take their time too.
    static void initMain() {
        const std::chrono::milliseconds longest = duration() + std::chrono::minutes(5);
        qputenv("QTEST_FUNCTION_TIMEOUT", QByteArray::number(qint64(longest.count())));
    }

private slots:
    void longUseLeavesNothingBehind();

private:
    QString perform(const Action &action);
    QString performAll(const QList<Action> &actions);
    /// In the end, takes away what was inserted and saved.
    QString performWhile(const std::function<bool()> &goesOn);
    QString leave();
    /// Widgets, objects, descriptors, match rules and bytes, once nothing is under way and they stay as they are; where
    /// `expected` is given, once they are those, or too late.
    QList<qint64> restingHoldings(const QList<qint64> &expected = {});

    Scenario scenario{chosenSeed()};
    Instrument instrument;
    int actionCount = 0;
};

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
    QString error;
    while (error.isEmpty() && goesOn()) {
        error = perform(scenario.next());
        if (error.isEmpty())
            error = instrument.differenceFrom(scenario.pages(), scenario.reports());
    }
    return error.isEmpty() ? leave() : error;
}

QString LauncherSoakTest::leave() {
    const QString error = performAll(scenario.ending());
    return error.isEmpty() ? instrument.differenceFrom(scenario.pages(), scenario.reports()) : error;
}

QList<qint64> LauncherSoakTest::restingHoldings(const QList<qint64> &expected) {
    const auto read = [this] {
        QList<qint64> numbers;
        for (const QString &number : instrument.launcher().holdings())
            numbers.append(number.toLongLong());
        return numbers;
    };
    QList<qint64> holdings = read();
    // The last words of a card, the end of an interrupted copy and whatever is deleted later take their time.
    const bool rests = QTest::qWaitFor(
        [&] {
            const QList<qint64> earlier = std::exchange(holdings, read());
            return !instrument.launcher().hasChildren() && earlier.size() == holdings.size() &&
                   holdings.size() > counted && earlier.first(counted) == holdings.first(counted) &&
                   (expected.isEmpty() || holdings.first(counted) == expected.first(counted));
        },
        longestRestMs);
    return rests || !expected.isEmpty() ? holdings : QList<qint64>();
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
    const QList<qint64> before = restingHoldings();
    QCOMPARE(before.size(), counted + 1);

    const QDeadlineTimer end(duration());
    error = performWhile([&] { return !end.hasExpired(); });
    QVERIFY2(error.isEmpty(), qPrintable(error));
    const QList<qint64> after = restingHoldings(before);
    QCOMPARE(after.size(), counted + 1);

    const qint64 growth = after.last() - before.last();
    qInfo("%d actions; resident memory grew by %lld bytes, to %lld", actionCount,
          static_cast<long long>(growth), static_cast<long long>(after.last()));
    QCOMPARE(after.first(counted), before.first(counted));
    QVERIFY2(before.at(matchRules) > 0, "the bus does not count match rules");
    // The address sanitizer keeps freed memory for a while, so there is nothing to learn from it there.
    if (MEMORY_IS_MEASURED)
        QVERIFY2(growth < mostGrowthBytes, qPrintable(QString::number(growth)));
}

QTEST_GUILESS_MAIN(LauncherSoakTest)
#include "tst_launchersoak.moc"
