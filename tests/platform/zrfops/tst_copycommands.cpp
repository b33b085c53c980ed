// SPDX-License-Identifier: GPL-3.0-or-later
#include "copycommands.h"

#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class CopyCommandsTest : public QObject {
    Q_OBJECT

private slots:
    void sourceBecomesADirectoryOrGivesItsContents_data();
    void sourceBecomesADirectoryOrGivesItsContents();
    void pathsStandBehindTheOptions();
    void ownersModesAndLinksStayBehind();
};

void CopyCommandsTest::sourceBecomesADirectoryOrGivesItsContents_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("word");
    QTest::newRow("directory") << u"/home/zr/reports"_s << u"/home/zr/./reports/"_s;
    QTest::newRow("nested") << u"/home/zr/data/reports"_s << u"/home/zr/data/./reports/"_s;
    QTest::newRow("contents") << u"/home/zr/"_s << u"/home/zr/./"_s;
    QTest::newRow("two slashes") << u"/home/zr//reports"_s << u"/home/zr/./reports/"_s;
    QTest::newRow("dots inside") << u"/home/zr/./a/../reports"_s << u"/home/zr/./reports/"_s;
    QTest::newRow("dots above") << u"/home/zr/../reports"_s << u"/home/./reports/"_s;
    QTest::newRow("below the root") << u"/home"_s << u"//./home/"_s;
    QTest::newRow("the root") << u"/"_s << u"/./"_s;
    QTest::newRow("option") << u"/home/zr/--delete"_s << u"/home/zr/./--delete/"_s;
    QTest::newRow("relative") << u"reports"_s << QDir::currentPath() + "/./reports/"_L1;
}

void CopyCommandsTest::sourceBecomesADirectoryOrGivesItsContents() {
    QFETCH(QString, path);
    QTEST(CopyCommands::source(path), "word");
}

void CopyCommandsTest::pathsStandBehindTheOptions() {
    const QStringList words = CopyCommands::copy({u"/a/b"_s, u"/c/"_s}, u"/media/sda1"_s).arguments;
    QCOMPARE(words.mid(words.indexOf(u"--"_s)),
             QStringList({u"--"_s, u"/a/./b/"_s, u"/c/./"_s, u"/media/sda1/"_s}));
}

void CopyCommandsTest::ownersModesAndLinksStayBehind() {
    const QStringList words = CopyCommands::copy({u"/a"_s}, u"/b"_s).arguments;
    for (const QString &word : words)
        QVERIFY2(word == u"--"_s || word.startsWith(u'/') || word.startsWith("--"_L1), qPrintable(word));
    for (const auto &unwanted : {"--archive"_L1, "--owner"_L1, "--group"_L1, "--perms"_L1, "--links"_L1,
                                 "--copy-links"_L1, "--inplace"_L1, "--delete"_L1})
        QVERIFY(!words.contains(unwanted));
}

QTEST_GUILESS_MAIN(CopyCommandsTest)
#include "tst_copycommands.moc"
