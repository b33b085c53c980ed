// SPDX-License-Identifier: GPL-3.0-or-later
#include "folderwatch.h"
#include "questionpanel.h"
#include "reportlistpage.h"
#include "reportswindow.h"
#include "reportviewpage.h"

#include <datatable.h>
#include <messageline.h>
#include <reportsdirectory.h>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class ReportsWindowTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void missingDirectoryHasNoReportsYet();
    void newReportAppearsWhileTheWindowIsOpen();
    void directoryIsFollowedOnlyWhileTheWindowCanBeSeen();
    void tapChoosesAndOpenShowsTheFile();
    void enterOpensTheFile();
    void stepBackReturnsFromTheFile();
    void levelIsAnnounced();
    void deleteKeyAsksFirst();
    void yesDeletesTheFile();
    void noKeepsTheFile();
    void stepBackClosesTheQuestionFirst();
    void nextFileIsChosenAfterADeletion();
    void failedDeletionIsTold();
    void chosenFileStaysChosenWhenANewerOneComes();
    void buttonsAreOffWhileNothingIsChosen();
    void fiveThousandFilesFit();

private:
    void write(const QString &name, const QByteArray &text = "text") const;
    void show();
    void choose(int row) const { table->selectRow(row); }
    bool exists(const QString &name) const { return QFile::exists(reportsDirectory() + u'/' + name); }
    void press(const QString &text) const;
    QString chosen() const;

    std::unique_ptr<ReportsWindow> window;
    DataTable *table = nullptr;
    QuestionPanel *question = nullptr;
};

void ReportsWindowTest::init() {
    QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s));
    QDir(reportsDirectory()).removeRecursively();
    window = std::make_unique<ReportsWindow>();
    window->resize(720, 420);
    table = window->findChild<DataTable *>();
    question = window->findChild<QuestionPanel *>();
}

void ReportsWindowTest::write(const QString &name, const QByteArray &text) const {
    QVERIFY(QDir().mkpath(reportsDirectory()));
    QFile file(reportsDirectory() + u'/' + name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), text.size());
}

void ReportsWindowTest::show() {
    window->show();
    QApplication::setActiveWindow(window.get());
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
}

void ReportsWindowTest::press(const QString &text) const {
    for (QPushButton *const button : window->findChildren<QPushButton *>()) {
        if (button->text() == text) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    QFAIL("no such button");
}

QString ReportsWindowTest::chosen() const {
    return QString::fromUtf8(window->findChild<ReportListPage *>()->chosenFile());
}

void ReportsWindowTest::missingDirectoryHasNoReportsYet() {
    show();
    QStringList texts;
    for (const QLabel *const label : window->findChildren<QLabel *>()) {
        if (label->isVisible())
            texts.append(label->text());
    }
    QVERIFY(texts.contains(u"No reports yet"_s));
    QVERIFY(!table->isVisible());
}

void ReportsWindowTest::newReportAppearsWhileTheWindowIsOpen() {
    show();
    write(u"report.txt"_s);
    QTRY_COMPARE(table->model()->rowCount(), 1);
    QVERIFY(table->isVisible());
}

void ReportsWindowTest::directoryIsFollowedOnlyWhileTheWindowCanBeSeen() {
    const auto *const watch = window->findChild<FolderWatch *>();
    QVERIFY(!watch->isRunning());
    show();
    QVERIFY(watch->isRunning());
    window->hide();
    QVERIFY(!watch->isRunning());
}

void ReportsWindowTest::tapChoosesAndOpenShowsTheFile() {
    write(u"report.txt"_s, "what was measured");
    show();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                      table->visualRect(table->model()->index(0, 0)).center());
    QTRY_COMPARE(chosen(), u"report.txt"_s);
    press(u"Open"_s);
    QVERIFY(window->findChild<ReportViewPage *>()->isVisible());
    QCOMPARE(window->findChild<QPlainTextEdit *>()->toPlainText(), u"what was measured"_s);
}

void ReportsWindowTest::enterOpensTheFile() {
    write(u"report.txt"_s);
    show();
    choose(0);
    QTest::keyClick(table, Qt::Key_Return);
    QVERIFY(window->findChild<ReportViewPage *>()->isVisible());
}

void ReportsWindowTest::stepBackReturnsFromTheFile() {
    write(u"report.txt"_s);
    show();
    choose(0);
    press(u"Open"_s);
    QVERIFY(!window->stepBack());
    QVERIFY(table->isVisible());
    QCOMPARE(chosen(), u"report.txt"_s);
    QVERIFY(window->stepBack());
}

void ReportsWindowTest::levelIsAnnounced() {
    write(u"report.txt"_s);
    show();
    choose(0);
    const QSignalSpy titles(window.get(), &ReportsWindow::setTitle);
    const QSignalSpy backTexts(window.get(), &ReportsWindow::setBackButtonText);
    press(u"Open"_s);
    QCOMPARE(titles.last().first().toString(), u"report.txt"_s);
    QCOMPARE(backTexts.last().first().toString(), u"Reports"_s);
    window->stepBack();
    QCOMPARE(titles.last().first().toString(), u"Reports"_s);
    QCOMPARE(backTexts.last().first().toString(), u"default"_s);
}

void ReportsWindowTest::deleteKeyAsksFirst() {
    write(u"report.txt"_s);
    show();
    choose(0);
    QTest::keyClick(table, Qt::Key_Delete);
    QVERIFY(question->isVisible());
    QVERIFY(exists(u"report.txt"_s));
}

void ReportsWindowTest::yesDeletesTheFile() {
    write(u"report.txt"_s);
    show();
    choose(0);
    press(u"Delete"_s);
    press(u"Yes"_s);
    QVERIFY(!exists(u"report.txt"_s));
    QCOMPARE(table->model()->rowCount(), 0);
}

void ReportsWindowTest::noKeepsTheFile() {
    write(u"report.txt"_s);
    show();
    choose(0);
    press(u"Delete"_s);
    press(u"No"_s);
    QVERIFY(exists(u"report.txt"_s));
    QVERIFY(!question->isVisible());
}

void ReportsWindowTest::stepBackClosesTheQuestionFirst() {
    write(u"report.txt"_s);
    show();
    choose(0);
    press(u"Delete"_s);
    QVERIFY(!window->stepBack());
    QVERIFY(!question->isVisible());
    QVERIFY(exists(u"report.txt"_s));
    QVERIFY(window->stepBack());
}

void ReportsWindowTest::nextFileIsChosenAfterADeletion() {
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s})
        write(name);
    show();
    choose(1);
    const QString deleted = chosen();
    const QString next = table->model()->index(2, 0).data().toString();
    press(u"Delete"_s);
    press(u"Yes"_s);
    QVERIFY(!exists(deleted));
    QCOMPARE(chosen(), next);
}

void ReportsWindowTest::failedDeletionIsTold() {
    write(u"report.txt"_s);
    show();
    choose(0);
    press(u"Delete"_s);
    QVERIFY(QFile::remove(reportsDirectory() + u"/report.txt"_s));
    press(u"Yes"_s);
    QVERIFY(!window->findChild<MessageLine *>()->message().isEmpty());
}

void ReportsWindowTest::chosenFileStaysChosenWhenANewerOneComes() {
    write(u"older.txt"_s);
    show();
    choose(0);
    write(u"newer.txt"_s);
    QTRY_COMPARE(table->model()->rowCount(), 2);
    QCOMPARE(chosen(), u"older.txt"_s);
}

void ReportsWindowTest::buttonsAreOffWhileNothingIsChosen() {
    write(u"report.txt"_s);
    show();
    press(u"Delete"_s);
    QVERIFY(!question->isVisible());
    QTest::keyClick(window.get(), Qt::Key_Delete);
    QVERIFY(!question->isVisible());
}

void ReportsWindowTest::fiveThousandFilesFit() {
    for (int number = 0; number < 5000; ++number)
        write(u"report-with-a-rather-long-name-to-be-elided-%1.txt"_s.arg(number), "");
    show();
    QCOMPARE(table->model()->rowCount(), 5000);
    QCOMPARE(window->size(), QSize(720, 420));
}

QTEST_MAIN(ReportsWindowTest)
#include "tst_reportswindow.moc"
