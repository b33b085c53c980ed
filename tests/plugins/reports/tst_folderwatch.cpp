// SPDX-License-Identifier: GPL-3.0-or-later
#include "filetree.h"
#include "folderwatch.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class FolderWatchTest : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s)); }
    void newFileIsTold();
    void deletedFileIsTold();
    void burstIsToldOnce();
    void directoryThatIsMadeLaterIsFollowed();
    void directoryThatIsMadeAnewIsFollowed();
    void nothingIsToldWhenStopped();
};

void FolderWatchTest::newFileIsTold() {
    const FileTree tree;
    FolderWatch watch;
    const QSignalSpy changes(&watch, &FolderWatch::changed);
    watch.start(tree.path());
    tree.write(u"report"_s, "x");
    QTRY_COMPARE(changes.count(), 1);
}

void FolderWatchTest::deletedFileIsTold() {
    const FileTree tree;
    tree.write(u"report"_s, "x");
    FolderWatch watch;
    const QSignalSpy changes(&watch, &FolderWatch::changed);
    watch.start(tree.path());
    QVERIFY(QFile::remove(tree.path(u"report"_s)));
    QTRY_COMPARE(changes.count(), 1);
}

void FolderWatchTest::burstIsToldOnce() {
    const FileTree tree;
    FolderWatch watch;
    QSignalSpy changes(&watch, &FolderWatch::changed);
    watch.start(tree.path());
    for (int number = 0; number < 100; ++number)
        tree.write(QString::number(number), "x");
    QVERIFY(changes.wait());
    tree.write(u"another"_s, "x");
    QVERIFY(changes.wait());
    QCOMPARE(changes.count(), 2);
}

void FolderWatchTest::directoryThatIsMadeLaterIsFollowed() {
    const FileTree tree;
    FolderWatch watch;
    QSignalSpy changes(&watch, &FolderWatch::changed);
    watch.start(tree.path(u"a/b"_s));
    QVERIFY(QDir(tree.path()).mkpath(u"a/b"_s));
    QVERIFY(changes.wait());
    changes.clear();
    tree.write(u"a/b/report"_s, "x");
    QTRY_VERIFY(changes.count() > 0);
}

void FolderWatchTest::directoryThatIsMadeAnewIsFollowed() {
    const FileTree tree;
    tree.write(u"reports/report"_s, "x");
    FolderWatch watch;
    QSignalSpy changes(&watch, &FolderWatch::changed);
    watch.start(tree.path(u"reports"_s));
    QVERIFY(QDir(tree.path(u"reports"_s)).removeRecursively());
    QVERIFY(changes.wait());
    QVERIFY(QDir(tree.path()).mkpath(u"reports"_s));
    QVERIFY(changes.wait());
    changes.clear();
    tree.write(u"reports/report"_s, "x");
    QTRY_VERIFY(changes.count() > 0);
}

void FolderWatchTest::nothingIsToldWhenStopped() {
    const FileTree tree;
    FolderWatch stopped;
    FolderWatch running;
    const QSignalSpy changes(&stopped, &FolderWatch::changed);
    QSignalSpy witness(&running, &FolderWatch::changed);
    stopped.start(tree.path());
    running.start(tree.path());
    stopped.stop();
    tree.write(u"report"_s, "x");
    QVERIFY(witness.wait());
    QCOMPARE(changes.count(), 0);
}

QTEST_GUILESS_MAIN(FolderWatchTest)
#include "tst_folderwatch.moc"
