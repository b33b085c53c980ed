// SPDX-License-Identifier: GPL-3.0-or-later
#include "systemfacts.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class SystemFactsTest : public QObject {
    Q_OBJECT

private slots:
    void timesAreReadable_data();
    void timesAreReadable();
    void partsHaveAPercentage();
    void loadStandsBesideTheProcessor();
    void whatIsMissingIsUnknown_data();
    void whatIsMissingIsUnknown();
};

void SystemFactsTest::timesAreReadable_data() {
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("just started") << qint64(0) << "00:00:00";
    QTest::newRow("below a day") << qint64(86399) << "23:59:59";
    QTest::newRow("a day") << qint64(86400) << "1 d 00:00:00";
    QTest::newRow("years") << qint64(86400) * 1000 + 3661 << "1000 d 01:01:01";
}

void SystemFactsTest::timesAreReadable() {
    QFETCH(const qint64, seconds);
    QTEST(SystemFacts::timeText(std::chrono::seconds(seconds)), "text");
}

void SystemFactsTest::partsHaveAPercentage() {
    SystemState state;
    state.memory = MemoryUse{250'000'000, 1'000'000'000};
    state.root = Volume{2'000'000'000, 1'000'000'000, 900'000'000, 1};
    QCOMPARE(SystemFacts::fact(SystemFacts::Memory, state).percent, 25);
    QCOMPARE(SystemFacts::fact(SystemFacts::Memory, state).text, u"250.0 MB of 1.0 GB used"_s);
    QCOMPARE(SystemFacts::fact(SystemFacts::RootStorage, state).percent, 50);
}

void SystemFactsTest::loadStandsBesideTheProcessor() {
    SystemState state;
    state.processor = u"Test Processor"_s;
    state.load = 37;
    QCOMPARE(SystemFacts::fact(SystemFacts::Processor, state),
             (Fact{u"Processor"_s, u"Test Processor"_s, 37}));
}

void SystemFactsTest::whatIsMissingIsUnknown_data() {
    QTest::addColumn<int>("kind");
    QTest::newRow("version") << int(SystemFacts::Launcher);
    QTest::newRow("kernel") << int(SystemFacts::Kernel);
    QTest::newRow("host name") << int(SystemFacts::Host);
    QTest::newRow("processor") << int(SystemFacts::Processor);
    QTest::newRow("memory") << int(SystemFacts::Memory);
    QTest::newRow("root storage") << int(SystemFacts::RootStorage);
    QTest::newRow("home storage") << int(SystemFacts::HomeStorage);
    QTest::newRow("uptime") << int(SystemFacts::Uptime);
}

void SystemFactsTest::whatIsMissingIsUnknown() {
    QFETCH(const int, kind);
    const Fact fact = SystemFacts::fact(static_cast<SystemFacts::Kind>(kind), SystemState());
    QCOMPARE(fact.text, u"Unknown"_s);
    QVERIFY(!fact.caption.isEmpty());
    QVERIFY(!fact.percent);
}

QTEST_GUILESS_MAIN(SystemFactsTest)
#include "tst_systemfacts.moc"
