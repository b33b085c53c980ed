// SPDX-License-Identifier: GPL-3.0-or-later
#include "reportsdirectory.h"

#include <zrconfig.h>

#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class ReportsDirectoryTest : public QObject {
    Q_OBJECT

private slots:
    void liesBelowHome_data();
    void liesBelowHome();
};

void ReportsDirectoryTest::liesBelowHome_data() {
    QTest::addColumn<QString>("configured");
    QTest::addColumn<QString>("below");
    QTest::newRow("nothing configured") << QString() << "/reports";
    QTest::newRow("a name") << "traces"
                            << "/traces";
    QTest::newRow("a name with a slash at its end") << "traces/"
                                                    << "/traces";
    QTest::newRow("nested") << "data/traces"
                            << "/data/traces";
    QTest::newRow("with a comma") << "a, b"
                                  << "/a, b";
}

void ReportsDirectoryTest::liesBelowHome() {
    QFETCH(const QString, configured);
    QFETCH(const QString, below);
    ZrConfig(u"zr-launcher"_s, u"paths"_s, u"main"_s) = configured;
    QCOMPARE(reportsDirectory(), QDir::homePath() + below);
}

QTEST_GUILESS_MAIN(ReportsDirectoryTest)
#include "tst_reportsdirectory.moc"
