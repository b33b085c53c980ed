// SPDX-License-Identifier: GPL-3.0-or-later
#include "filetree.h"
#include "reportfiles.h"

#include <QTest>

#include <sys/stat.h>
#include <sys/time.h>

using namespace Qt::Literals::StringLiterals;

class ReportFilesTest : public QObject {
    Q_OBJECT

private slots:
    void newestStandsFirst();
    void sizeAndDateAreRead();
    void onlyFilesAreListed();
    void linksToFilesAreListed();
    void missingDirectoryIsEmpty();
    void fileInTheDirectorysPlaceIsAnError();
    void fiveThousandFilesAreListed();
    void tooManyFilesAreCut();
    void namesOfAnyBytesAreKept();
    void shownNameIsOneLine_data();
    void shownNameIsOneLine();
    void deletedFileIsGone();
    void deletedLinkLeavesWhatItLedTo();
    void nothingOutsideTheDirectoryIsDeleted();
    void directoryIsNotDeleted();
    void missingFileIsAnErrorToDelete();
    void pipeIsNotWaitedFor();

private:
    static QList<QByteArray> namesIn(const QString &directory);
    static void setDate(const QString &file, time_t date);
};

QList<QByteArray> ReportFilesTest::namesIn(const QString &directory) {
    QList<QByteArray> names;
    for (const ReportFile &file : reportsIn(directory).files)
        names.append(file.name);
    return names;
}

void ReportFilesTest::setDate(const QString &file, time_t date) {
    const timeval times[2] = {{date, 0}, {date, 0}};
    QCOMPARE(::utimes(QFile::encodeName(file).constData(), times), 0);
}

void ReportFilesTest::newestStandsFirst() {
    const FileTree tree;
    const QList<QPair<QString, time_t>> files{
        {u"old"_s, 1000}, {u"b-new"_s, 3000}, {u"a-new"_s, 3000}, {u"mid"_s, 2000}};
    for (const auto &[name, date] : files) {
        tree.write(name, "x");
        setDate(tree.path(name), date);
    }
    QCOMPARE(namesIn(tree.path()), QList<QByteArray>({"a-new", "b-new", "mid", "old"}));
}

void ReportFilesTest::sizeAndDateAreRead() {
    const FileTree tree;
    tree.write(u"report"_s, QByteArray(1234, 'x'));
    setDate(tree.path(u"report"_s), 1'800'000'000);
    const ReportFile file = reportsIn(tree.path()).files.first();
    QCOMPARE(file.size, quint64(1234));
    QCOMPARE(file.modified.toSecsSinceEpoch(), 1'800'000'000);
}

void ReportFilesTest::onlyFilesAreListed() {
    const FileTree tree;
    tree.write(u"directory/inside"_s, "x");
    QCOMPARE(::mkfifo(QFile::encodeName(tree.path(u"pipe"_s)).constData(), 0600), 0);
    QVERIFY(QFile::link(u"/nowhere"_s, tree.path(u"dangling"_s)));
    QVERIFY(QFile::link(u"/proc"_s, tree.path(u"to a directory"_s)));
    tree.write(u"file"_s, "x");
    QCOMPARE(namesIn(tree.path()), QList<QByteArray>{"file"});
}

void ReportFilesTest::linksToFilesAreListed() {
    const FileTree tree;
    const FileTree elsewhere;
    elsewhere.write(u"target"_s, "12345");
    QVERIFY(QFile::link(elsewhere.path(u"target"_s), tree.path(u"link"_s)));
    const ReportListing listing = reportsIn(tree.path());
    QCOMPARE(listing.files.size(), 1);
    QCOMPARE(listing.files.first().size, quint64(5));
}

void ReportFilesTest::missingDirectoryIsEmpty() {
    const ReportListing listing = reportsIn(u"/nowhere/at/all"_s);
    QVERIFY(listing.files.isEmpty());
    QVERIFY(listing.error.isEmpty());
}

void ReportFilesTest::fileInTheDirectorysPlaceIsAnError() {
    const FileTree tree;
    tree.write(u"reports"_s, "x");
    QVERIFY(!reportsIn(tree.path(u"reports"_s)).error.isEmpty());
}

void ReportFilesTest::fiveThousandFilesAreListed() {
    const FileTree tree;
    for (int number = 0; number < 5000; ++number)
        tree.write(u"report-%1.txt"_s.arg(number), "");
    const ReportListing listing = reportsIn(tree.path());
    QCOMPARE(listing.files.size(), 5000);
    QVERIFY(!listing.isCut);
}

void ReportFilesTest::tooManyFilesAreCut() {
    const FileTree tree;
    for (int number = 0; number < 5; ++number)
        tree.write(QString::number(number), "");
    QCOMPARE(reportsIn(tree.path(), 4).files.size(), 4);
    QVERIFY(reportsIn(tree.path(), 4).isCut);
    QVERIFY(!reportsIn(tree.path(), 5).isCut);
}

void ReportFilesTest::namesOfAnyBytesAreKept() {
    const FileTree tree;
    const QByteArray name = "two\nlines \xff\xfe";
    const QByteArray path = QFile::encodeName(tree.path()) + '/' + name;
    FILE *const stream = std::fopen(path.constData(), "w");
    QVERIFY(stream);
    std::fclose(stream);

    QCOMPARE(namesIn(tree.path()), QList<QByteArray>{name});
    QFile file;
    QVERIFY(openReport(file, tree.path(), name));
    QVERIFY(!deleteReport(tree.path(), name));
    QVERIFY(namesIn(tree.path()).isEmpty());
}

void ReportFilesTest::shownNameIsOneLine_data() {
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("shown");
    QTest::newRow("plain") << QByteArray("report.txt") << "report.txt";
    QTest::newRow("other alphabets") << u"отчёт"_s.toUtf8() << u"отчёт"_s;
    QTest::newRow("line end") << QByteArray("two\nlines") << u"two\uFFFDlines"_s;
    QTest::newRow("terminal control") << QByteArray("\x1b[2J") << u"\uFFFD[2J"_s;
    QTest::newRow("text turned round") << u"a\u202Etxt.exe"_s.toUtf8() << u"a\uFFFDtxt.exe"_s;
    QTest::newRow("not a text") << QByteArray("\xff") << u"\uFFFD"_s;
}

void ReportFilesTest::shownNameIsOneLine() {
    QFETCH(const QByteArray, name);
    QTEST(shownName(name), "shown");
}

void ReportFilesTest::deletedFileIsGone() {
    const FileTree tree;
    tree.write(u"report"_s, "x");
    QVERIFY(!deleteReport(tree.path(), "report"));
    QVERIFY(namesIn(tree.path()).isEmpty());
}

void ReportFilesTest::deletedLinkLeavesWhatItLedTo() {
    const FileTree tree;
    const FileTree elsewhere;
    elsewhere.write(u"target"_s, "kept");
    QVERIFY(QFile::link(elsewhere.path(u"target"_s), tree.path(u"link"_s)));
    QVERIFY(!deleteReport(tree.path(), "link"));
    QVERIFY(!QFileInfo(tree.path(u"link"_s)).isSymLink());
    QCOMPARE(elsewhere.read(u"target"_s), "kept"_ba);
}

void ReportFilesTest::nothingOutsideTheDirectoryIsDeleted() {
    const FileTree tree;
    tree.write(u"kept"_s, "x");
    tree.write(u"reports/inside"_s, "x");
    QVERIFY(deleteReport(tree.path(u"reports"_s), "../kept"));
    QCOMPARE(tree.read(u"kept"_s), "x"_ba);
}

void ReportFilesTest::directoryIsNotDeleted() {
    const FileTree tree;
    tree.write(u"directory/inside"_s, "x");
    QVERIFY(deleteReport(tree.path(), "directory"));
    QCOMPARE(tree.read(u"directory/inside"_s), "x"_ba);
}

void ReportFilesTest::missingFileIsAnErrorToDelete() {
    const FileTree tree;
    QVERIFY(!deleteReport(tree.path(), "nothing")->isEmpty());
    QVERIFY(!deleteReport(u"/nowhere"_s, "nothing")->isEmpty());
}

void ReportFilesTest::pipeIsNotWaitedFor() {
    const FileTree tree;
    QCOMPARE(::mkfifo(QFile::encodeName(tree.path(u"pipe"_s)).constData(), 0600), 0);
    QFile file;
    QVERIFY(!openReport(file, tree.path(), "pipe"));
}

QTEST_GUILESS_MAIN(ReportFilesTest)
#include "tst_reportfiles.moc"
