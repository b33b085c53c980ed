// SPDX-License-Identifier: GPL-3.0-or-later
#include "timelimit.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TimeLimitTest : public QObject {
    Q_OBJECT

private slots:
    void cardStatesItsTimeLimit_data();
    void cardStatesItsTimeLimit();
};

void TimeLimitTest::cardStatesItsTimeLimit_data() {
    QTest::addColumn<QString>("options");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("nothing stated") << u"G703\nZR-SIG1"_s << 2000;
    QTest::newRow("no options") << QString() << 2000;
    QTest::newRow("stated") << u"G703\nCOMMAND-TIMEOUT=5000"_s << 5000;
    QTest::newRow("first statement counts") << u"COMMAND-TIMEOUT=300\nCOMMAND-TIMEOUT=400"_s << 300;
    QTest::newRow("too short") << u"COMMAND-TIMEOUT=1"_s << 100;
    QTest::newRow("negative") << u"COMMAND-TIMEOUT=-7"_s << 100;
    QTest::newRow("too long") << u"COMMAND-TIMEOUT=3600000"_s << 10000;
    QTest::newRow("no number") << u"COMMAND-TIMEOUT=soon"_s << 2000;
    QTest::newRow("other case") << u"command-timeout=300"_s << 2000;
    QTest::newRow("inside a line") << u"x COMMAND-TIMEOUT=300"_s << 2000;
}

void TimeLimitTest::cardStatesItsTimeLimit() {
    QFETCH(QString, options);
    QTEST(int(statedTimeLimit(options).count()), "milliseconds");
}

QTEST_GUILESS_MAIN(TimeLimitTest)
#include "tst_timelimit.moc"
