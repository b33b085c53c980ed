// SPDX-License-Identifier: GPL-3.0-or-later
#include "zrlauncherconfig.h"

#include "testconfig.h"

#include <QSettings>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class ZrLauncherConfigTest : public QObject {
    Q_OBJECT

private slots:
    void init() { TestConfig(); }

    void reachesTheStoreOfTheLauncher();
    void bothAccessPathsReachTheSameData();
};

void ZrLauncherConfigTest::reachesTheStoreOfTheLauncher() {
    TestConfig().set(u"paths/main"_s, u"reports"_s);
    QCOMPARE(ZrLauncherConfig(u"paths"_s, u"main"_s).string(), u"reports"_s);
    QCOMPARE(ZrLauncherConfig(u"paths"_s)[u"main"_s].string(), u"reports"_s);
}

void ZrLauncherConfigTest::bothAccessPathsReachTheSameData() {
    ZrLauncherConfig(u"flash"_s, u"save"_s) = true;
    QCOMPARE(QSettings(u"talvenor"_s, u"zr-launcher"_s).value(u"flash/save"_s).toBool(), true);
    ZrLauncherConfig(u"flash"_s)[u"save"_s] = false;
    QCOMPARE(QSettings(u"talvenor"_s, u"zr-launcher"_s).value(u"flash/save"_s).toBool(), false);
}

QTEST_GUILESS_MAIN(ZrLauncherConfigTest)
#include "tst_zrlauncherconfig.moc"
