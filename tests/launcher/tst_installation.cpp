// SPDX-License-Identifier: GPL-3.0-or-later
#include "installation.h"

#include <QCoreApplication>
#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class InstallationTest : public QObject {
    Q_OBJECT

private slots:
    void shippedPluginsAreFoundBesideTheProgram();
    void treesOwnConfigurationComesAfterTheSystems();
    void directoriesThatTheEnvironmentNamesStay();

private:
    QString prefix() const { return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/.."_L1); }
};

void InstallationTest::shippedPluginsAreFoundBesideTheProgram() {
    registerInstallation();
    const QStringList paths = QDir::searchPaths(u"shipped"_s);
    QCOMPARE(paths.size(), 1);
    QVERIFY(paths.first().startsWith(prefix() + "/lib/"_L1));
    QVERIFY(paths.first().endsWith("/zr-launcher/plugins"_L1));
}

void InstallationTest::treesOwnConfigurationComesAfterTheSystems() {
    qunsetenv("XDG_CONFIG_DIRS");
    registerInstallation();
    QCOMPARE(qEnvironmentVariable("XDG_CONFIG_DIRS"), "/etc/xdg:"_L1 + prefix() + "/etc/xdg"_L1);
}

void InstallationTest::directoriesThatTheEnvironmentNamesStay() {
    qputenv("XDG_CONFIG_DIRS", "/somewhere");
    registerInstallation();
    QCOMPARE(qgetenv("XDG_CONFIG_DIRS"), "/somewhere"_ba);
}

QTEST_GUILESS_MAIN(InstallationTest)
#include "tst_installation.moc"
