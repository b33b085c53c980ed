// SPDX-License-Identifier: GPL-3.0-or-later
#include "framebuffer.h"
#include "hostpath.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class HostPathTest : public QObject {
    Q_OBJECT

private slots:
    void systemRootStandsInFrontOfFixedNames();
    void fixedNamesAreUsedAsTheyAreWithoutASystemRoot();
    void screenIs600HighWithoutAFramebuffer();
    void screenIs600HighWhenTheDeviceRefuses();
};

void HostPathTest::systemRootStandsInFrontOfFixedNames() {
    QCOMPARE(hostPath(u"/proc/apm"_s), qEnvironmentVariable("ZR_SYSROOT") + "/proc/apm"_L1);
    QVERIFY(hostPath(u"/proc/apm"_s) != "/proc/apm"_L1);
}

void HostPathTest::fixedNamesAreUsedAsTheyAreWithoutASystemRoot() {
    const QByteArray root = qgetenv("ZR_SYSROOT");
    qunsetenv("ZR_SYSROOT");
    QCOMPARE(hostPath(u"/dev/fb0"_s), u"/dev/fb0"_s);
    qputenv("ZR_SYSROOT", root);
}

void HostPathTest::screenIs600HighWithoutAFramebuffer() {
    QCOMPARE(fbHeight(), 600);
}

void HostPathTest::screenIs600HighWhenTheDeviceRefuses() {
    QVERIFY(QDir().mkpath(hostPath(u"/dev"_s)));
    QFile notADevice(hostPath(u"/dev/fb0"_s));
    QVERIFY(notADevice.open(QIODevice::WriteOnly));
    QCOMPARE(fbHeight(), 600);
}

QTEST_GUILESS_MAIN(HostPathTest)
#include "tst_hostpath.moc"
