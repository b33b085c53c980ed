// SPDX-License-Identifier: GPL-3.0-or-later
#include "filetree.h"
#include "reportwriter.h"

#include <QTest>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Lets no file grow beyond a size, as a full disk does.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) : usualHandler(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &usualLimit);
        const rlimit limit{bytes, usualLimit.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &usualLimit);
        std::signal(SIGXFSZ, usualHandler);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    rlimit usualLimit{};
    void (*usualHandler)(int);
};

} // namespace

class ReportWriterTest : public QObject {
    Q_OBJECT

private slots:
    void textIsSavedAsUtf8();
    void missingDirectoriesAreMade();
    void takenNamesAreNotOverwritten();
    void danglingLinkIsNotWrittenThrough();
    void fileInTheDirectorysPlaceIsAnError();
    void fullDiskLeavesNothingBehind_data();
    void fullDiskLeavesNothingBehind();
};

void ReportWriterTest::textIsSavedAsUtf8() {
    const FileTree tree;
    const SavedReport report = writeReport(tree.path(), u"report"_s, u"Отчёт\n"_s);
    QCOMPARE(report.name, u"report.txt"_s);
    QVERIFY(report.error.isEmpty());
    QCOMPARE(tree.read(u"report.txt"_s), u"Отчёт\n"_s.toUtf8());
}

void ReportWriterTest::missingDirectoriesAreMade() {
    const FileTree tree;
    QCOMPARE(writeReport(tree.path(u"a/b"_s), u"report"_s, u"x"_s).name, u"report.txt"_s);
    QCOMPARE(tree.read(u"a/b/report.txt"_s), "x"_ba);
}

void ReportWriterTest::takenNamesAreNotOverwritten() {
    const FileTree tree;
    tree.write(u"report.txt"_s, "first");
    QCOMPARE(writeReport(tree.path(), u"report"_s, u"second"_s).name, u"report-2.txt"_s);
    QCOMPARE(writeReport(tree.path(), u"report"_s, u"third"_s).name, u"report-3.txt"_s);
    QCOMPARE(tree.read(u"report.txt"_s), "first"_ba);
    QCOMPARE(tree.read(u"report-2.txt"_s), "second"_ba);
}

void ReportWriterTest::danglingLinkIsNotWrittenThrough() {
    const FileTree tree;
    QVERIFY(QFile::link(tree.path(u"elsewhere"_s), tree.path(u"report.txt"_s)));
    QCOMPARE(writeReport(tree.path(), u"report"_s, u"x"_s).name, u"report-2.txt"_s);
    QVERIFY(!QFile::exists(tree.path(u"elsewhere"_s)));
}

void ReportWriterTest::fileInTheDirectorysPlaceIsAnError() {
    const FileTree tree;
    tree.write(u"reports"_s, "a file");
    const SavedReport report = writeReport(tree.path(u"reports"_s), u"report"_s, u"x"_s);
    QVERIFY(report.name.isEmpty());
    QVERIFY(!report.error.isEmpty());
    QCOMPARE(tree.read(u"reports"_s), "a file"_ba);
}

void ReportWriterTest::fullDiskLeavesNothingBehind_data() {
    QTest::addColumn<int>("characters");
    QTest::newRow("less than a buffer") << 2000;
    QTest::newRow("more than a buffer") << 100'000;
}

void ReportWriterTest::fullDiskLeavesNothingBehind() {
    QFETCH(int, characters);
    const FileTree tree;
    SavedReport report;
    {
        const FileSizeLimit limit(1000);
        report = writeReport(tree.path(), u"report"_s, QString(characters, u'x'));
    }
    QVERIFY(report.name.isEmpty());
    QVERIFY(!report.error.isEmpty());
    QCOMPARE(QDir(tree.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

QTEST_GUILESS_MAIN(ReportWriterTest)
#include "tst_reportwriter.moc"
