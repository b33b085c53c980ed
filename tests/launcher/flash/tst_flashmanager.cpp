// SPDX-License-Identifier: GPL-3.0-or-later
#include "flash/flashmanager.h"

#include "errorstream.h"
#include "filesbelow.h"
#include "flash/flashdialog.h"
#include "flash/flashspy.h"
#include "standinprograms.h"
#include "testconfig.h"
#include "zrlauncherconfig.h"

#include <warningwindow.h>

#include <QDir>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

#include <functional>
#include <memory>

using namespace Qt::Literals::StringLiterals;

/// The whole export, from the drive to the copy, with the real rsync.
class FlashManagerTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void yesCopiesTheReports();
    void emptyFolderNameCopiesTheHome();
    void oddFolderNamesAreCopied_data();
    void oddFolderNamesAreCopied();
    void partitionNameThatLeadsElsewhereIsNotCopiedTo();
    void noCopiesNothing();
    void driveThatFailsBeforeItIsSaidToBePulledIsTold();
    void driveRemovedWhileItIsAskedAboutClosesTheQuestionSilently();
    void driveRemovedWithoutAQuestionIsSilent();
    void pulledDriveEndsTheCopyAndIsTold();
    void exportAfterAPulledDriveWorks();
    void nextQuestionAfterAnExportTellsOfAPulledDriveThoughNothingWasCopied();
    void errorsOfTheCopyAreNotShown();
    void errorsOfTheCopyAreShownWhereADeviceHasTheMountDirectorysName();
    void secondDriveAndMountErrorsAreShown();
    void copyEndsWithTheWindow();

private:
    static QString host(const QString &path) { return qEnvironmentVariable("ZR_SYSROOT") + path; }
    static QString save() { return ZrLauncherConfig(u"flash"_s, u"save"_s).string(); }
    static QString media(const QString &name) { return host("/media/"_L1 + name); }
    /// Inserts a drive and does `work` while the question is open; returns when it is closed.
    void insertAnd(const QString &name, const std::function<void()> &work) {
        QDir().mkpath(media(name));
        QTimer::singleShot(0, dialog(), work);
        spy()->addFlash(name);
    }
    FlashSpy *spy() const { return manager->findChild<FlashSpy *>(); }
    FlashDialog *dialog() const { return window->findChild<FlashDialog *>(); }
    QString warning() const {
        const auto *const box = dialog()->findChild<WarningWindow *>();
        return box && box->isVisible() ? box->findChild<QTextEdit *>()->toPlainText() : QString();
    }
    void press(const QString &text) {
        for (QPushButton *const button : dialog()->findChildren<QPushButton *>()) {
            if (button->text() == text)
                button->click();
        }
    }

    TestConfig config;
    std::unique_ptr<StandInPrograms> programs;
    std::unique_ptr<QWidget> window;
    FlashManager *manager = nullptr;
};

void FlashManagerTest::init() {
    config = TestConfig();
    config.set(u"paths/main"_s, u"reports"_s);
    for (const QString &path : {QDir::homePath(), host(u"/media"_s), host(u"/dev"_s)})
        QDir(path).removeRecursively();
    writeFiles(QDir::homePath(),
               {{"reports/line 1.txt", "one"}, {"reports/traces/2", "two"}, {"other", "three"}});
    programs = std::make_unique<StandInPrograms>();
    window = std::make_unique<QWidget>();
    window->resize(800, 480);
    window->show();
    manager = new FlashManager(window.get());
}

void FlashManagerTest::cleanup() {
    window.reset();
    programs.reset();
}

void FlashManagerTest::yesCopiesTheReports() {
    for (int time = 0; time < 2; ++time) {
        insertAnd(u"sda1"_s, [this] { press(u"Yes"_s); });
        QCOMPARE(save(), u"true"_s);
        QCOMPARE(readFiles(media(u"sda1"_s)),
                 FilesBelow({{"reports/line 1.txt", "one"}, {"reports/traces/2", "two"}}));
        QCOMPARE(dialog()->findChild<QProgressBar *>()->value(), 100);
        QCOMPARE(warning(), QString());
        spy()->removeFlash(u"sda1"_s);
    }
}

void FlashManagerTest::emptyFolderNameCopiesTheHome() {
    config.set(u"paths/main"_s, QString());
    insertAnd(u"sda1"_s, [this] { press(u"Yes"_s); });
    const FilesBelow copied = readFiles(media(u"sda1"_s));
    QCOMPARE(copied["other"], "three");
    QCOMPARE(copied["reports/traces/2"], "two");
}

void FlashManagerTest::oddFolderNamesAreCopied_data() {
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QByteArray>("copied");
    QTest::newRow("below another") << u"reports/traces"_s << QByteArray("traces/2");
    QTest::newRow("slash at the end") << u"reports/"_s << QByteArray("traces/2");
    QTest::newRow("absolute: below the home all the same") << u"/reports"_s << QByteArray("reports/traces/2");
    QTest::newRow("dots") << u"../home/reports"_s << QByteArray("reports/traces/2");
    QTest::newRow("dots at the end") << u"reports/.."_s << QByteArray("home/reports/traces/2");
    QTest::newRow("not there") << u"nothing"_s << QByteArray();
}

void FlashManagerTest::oddFolderNamesAreCopied() {
    QFETCH(QString, folder);
    QFETCH(QByteArray, copied);
    config.set(u"paths/main"_s, folder);
    const FilesBelow before = readFiles(QDir::homePath());
    insertAnd(u"sda1"_s, [this] { press(u"Yes"_s); });
    QCOMPARE(readFiles(media(u"sda1"_s)).value(copied), copied.isEmpty() ? QByteArray() : QByteArray("two"));
    QCOMPARE(readFiles(QDir::homePath()), before);
}

void FlashManagerTest::partitionNameThatLeadsElsewhereIsNotCopiedTo() {
    QDir().mkpath(host(u"/elsewhere1"_s));
    insertAnd(u"../elsewhere1"_s, [this] { press(u"Yes"_s); });
    QCOMPARE(readFiles(host(u"/elsewhere1"_s)), FilesBelow());
}

void FlashManagerTest::noCopiesNothing() {
    insertAnd(u"sda1"_s, [this] { press(u"No"_s); });
    QCOMPARE(save(), u"false"_s);
    QCOMPARE(readFiles(media(u"sda1"_s)), FilesBelow());
}

void FlashManagerTest::driveRemovedWhileItIsAskedAboutClosesTheQuestionSilently() {
    insertAnd(u"sda1"_s, [this] { spy()->removeFlash(u"sda1"_s); });
    QVERIFY(!dialog()->isVisible());
    QCOMPARE(save(), u"false"_s);
    QVERIFY(!dialog()->findChild<WarningWindow *>());
}

void FlashManagerTest::driveRemovedWithoutAQuestionIsSilent() {
    spy()->removeFlash(u"sda1"_s);
    QVERIFY(!dialog()->isVisible());
    QVERIFY(!dialog()->findChild<WarningWindow *>());
}

void FlashManagerTest::pulledDriveEndsTheCopyAndIsTold() {
    programs->put(u"rsync"_s, "exec /usr/bin/rsync --bwlimit=100 \"$@\"");
    writeFiles(QDir::homePath(), {{"reports/long", QByteArray(5000000, 'x')}});
    insertAnd(u"sda1"_s, [this] {
        press(u"Yes"_s);
        QTRY_VERIFY(QFile::exists(media(u"sda1/reports/line 1.txt"_s)));
        spy()->removeFlash(u"sda1"_s);
    });
    QCOMPARE(save(), u"false"_s);
    QCOMPARE(warning(), u"Error: \nUSB mass-storage device is plugged out"_s);
    QVERIFY(!readFiles(media(u"sda1"_s)).contains("reports/long"));
    QVERIFY(!dialog()->isVisible());
}

void FlashManagerTest::driveThatFailsBeforeItIsSaidToBePulledIsTold() {
    programs->put(u"rsync"_s, "echo 'rsync: Input/output error' >&2; touch $0.log; exit 11");
    insertAnd(u"sda1"_s, [this] {
        press(u"Yes"_s);
        QTRY_VERIFY(QFile::exists(programs->path(u"rsync.log"_s)));
        spy()->removeFlash(u"sda1"_s);
    });
    QCOMPARE(warning(), u"Error: \nUSB mass-storage device is plugged out"_s);
    QCOMPARE(save(), u"false"_s);
}

void FlashManagerTest::exportAfterAPulledDriveWorks() {
    pulledDriveEndsTheCopyAndIsTold();
    programs->put(u"rsync"_s, "exec /usr/bin/rsync \"$@\"");
    insertAnd(u"sdb1"_s, [this] {
        dialog()->findChild<WarningWindow *>()->accept();
        press(u"Yes"_s);
    });
    QCOMPARE(save(), u"true"_s);
    QCOMPARE(readFiles(media(u"sdb1/reports"_s)), readFiles(QDir::homePath() + "/reports"_L1));
}

void FlashManagerTest::nextQuestionAfterAnExportTellsOfAPulledDriveThoughNothingWasCopied() {
    insertAnd(u"sda1"_s, [this] { press(u"Yes"_s); });
    spy()->removeFlash(u"sda1"_s);
    QCOMPARE(warning(), QString());
    insertAnd(u"sda1"_s, [this] { spy()->removeFlash(u"sda1"_s); });
    QCOMPARE(warning(), u"Error: \nUSB mass-storage device is plugged out"_s);
    dialog()->findChild<WarningWindow *>()->accept();
    // Told once; the next one is as the first was.
    insertAnd(u"sda1"_s, [this] { spy()->removeFlash(u"sda1"_s); });
    QCOMPARE(warning(), QString());
}

void FlashManagerTest::errorsOfTheCopyAreNotShown() {
    programs->put(u"rsync"_s, "exit 23");
    ErrorStream errors;
    insertAnd(u"sda1"_s, [this] { press(u"Yes"_s); });
    QCOMPARE(warning(), QString());
    // The end of the copy closes the question, whatever the end is.
    QCOMPARE(save(), u"true"_s);
    QVERIFY(errors.take().contains(
        "Export to flash: error 23: Some files could not be copied. (rsync: exit code 23)\n"));
}

void FlashManagerTest::errorsOfTheCopyAreShownWhereADeviceHasTheMountDirectorysName() {
    writeFiles(host(u"/dev"_s), {{"media/sda1", QByteArray()}});
    programs->put(u"rsync"_s, "exit 23");
    insertAnd(u"sda1"_s, [this] { press(u"Yes"_s); });
    QCOMPARE(warning(), u"Error: \nSome files could not be copied. (rsync: exit code 23)"_s);
}

void FlashManagerTest::secondDriveAndMountErrorsAreShown() {
    insertAnd(u"sda1"_s, [this] {
        spy()->addFlash(u"sdb1"_s);
        QTRY_COMPARE(warning(), u"Only one flash card can be used. Please, remove currently installed"_s);
        QVERIFY(dialog()->isVisible());
        dialog()->findChild<WarningWindow *>()->accept();
        press(u"No"_s);
    });
    spy()->brokeFlash(32);
    QTRY_COMPARE(warning(), u"Error 32:\nmount failure\n"_s);
}

void FlashManagerTest::copyEndsWithTheWindow() {
    programs->put(u"rsync"_s, "echo $$ >$0.log; exec /usr/bin/rsync --bwlimit=100 \"$@\"");
    writeFiles(QDir::homePath(), {{"reports/long", QByteArray(5000000, 'x')}});
    insertAnd(u"sda1"_s, [this] {
        press(u"Yes"_s);
        QTRY_VERIFY(QFile::exists(media(u"sda1/reports/line 1.txt"_s)));
        dialog()->done(QDialog::Rejected);
    });
    window.reset();
    QVERIFY(!QFile::exists("/proc/"_L1 + QString::fromLatin1(programs->log(u"rsync"_s).trimmed())));
    QVERIFY(!readFiles(media(u"sda1"_s)).contains("reports/long"));
}

QTEST_MAIN(FlashManagerTest)
#include "tst_flashmanager.moc"
