// SPDX-License-Identifier: GPL-3.0-or-later
#include "noticewindow.h"

#include <messageline.h>
#include <reportsdirectory.h>

#include <QApplication>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class NoticeWindowTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void pluginAndReasonAreShown();
    void markupInANameIsNotInterpreted();
    void traceIsScrolledByKeys();
    void traceCannotBeChanged();
    void tapSavesTheReport();
    void enterSavesTheReport();
    void noReportReplacesAnother();
    void failureIsTold();
    void longTraceFitsTheScreen();
    void buttonIsHighEnoughForAThumb();

private:
    static LeftOutNote noteOf(const QString &plugin, const QString &trace);
    static QStringList reports();
    void show(const LeftOutNote &note);
    QString message() const { return window->findChild<MessageLine *>()->message(); }
    QPushButton *button() const { return window->findChild<QPushButton *>(); }
    QPlainTextEdit *traceView() const { return window->findChild<QPlainTextEdit *>(); }

    std::unique_ptr<NoticeWindow> window;
};

LeftOutNote NoticeWindowTest::noteOf(const QString &plugin, const QString &trace) {
    return LeftOutNote::from(QJsonDocument(QJsonObject{{u"plugin"_s, plugin},
                                                       {u"library"_s, u"/opt/lib%1.so"_s.arg(plugin)},
                                                       {u"crashes"_s, 3},
                                                       {u"trace"_s, trace}})
                                 .toJson());
}

QStringList NoticeWindowTest::reports() {
    return QDir(reportsDirectory()).entryList(QDir::Files);
}

void NoticeWindowTest::init() {
    QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s));
    QDir(reportsDirectory()).removeRecursively();
    QFile::remove(reportsDirectory());
}

void NoticeWindowTest::show(const LeftOutNote &note) {
    window = std::make_unique<NoticeWindow>(note);
    window->resize(720, 420);
    window->show();
    QApplication::setActiveWindow(window.get());
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
}

void NoticeWindowTest::pluginAndReasonAreShown() {
    show(noteOf(u"clock"_s, u"[bt]: (1) there"_s));
    QCOMPARE(window->windowTitle(), u"Left out: clock"_s);
    QString texts;
    for (const QLabel *const label : window->findChildren<QLabel *>())
        texts += label->text();
    QVERIFY(texts.contains(u"Left out: clock"_s));
    QVERIFY(texts.contains(u"libclock.so"_s));
    QCOMPARE(traceView()->toPlainText(), u"[bt]: (1) there"_s);
}

void NoticeWindowTest::markupInANameIsNotInterpreted() {
    show(noteOf(u"<b>clock</b>"_s, {}));
    for (const QLabel *const label : window->findChildren<QLabel *>())
        QCOMPARE(label->textFormat(), Qt::PlainText);
}

void NoticeWindowTest::traceIsScrolledByKeys() {
    show(noteOf(u"clock"_s, u"[bt]: a line\n"_s.repeated(200)));
    QCOMPARE(traceView()->verticalScrollBar()->value(), 0);
    QTest::keyClick(traceView(), Qt::Key_Down);
    QVERIFY(traceView()->verticalScrollBar()->value() > 0);
    const int afterOne = traceView()->verticalScrollBar()->value();
    QTest::keyClick(traceView(), Qt::Key_PageDown);
    QVERIFY(traceView()->verticalScrollBar()->value() > afterOne);
}

void NoticeWindowTest::traceCannotBeChanged() {
    show(noteOf(u"clock"_s, u"as it was"_s));
    QTest::keyClicks(traceView(), u"x"_s);
    QCOMPARE(traceView()->toPlainText(), u"as it was"_s);
}

void NoticeWindowTest::tapSavesTheReport() {
    show(noteOf(u"clock"_s, u"[bt]: (1) there"_s));
    QTest::mouseClick(button(), Qt::LeftButton);
    QCOMPARE(reports().size(), 1);
    QCOMPARE(message(), u"Report saved: %1"_s.arg(reports().first()));
    QFile report(reportsDirectory() + u'/' + reports().first());
    QVERIFY(report.open(QIODevice::ReadOnly));
    QVERIFY(report.readAll().contains("[bt]: (1) there"));
}

void NoticeWindowTest::enterSavesTheReport() {
    show(noteOf(u"clock"_s, {}));
    QTest::keyClick(button(), Qt::Key_Return);
    QCOMPARE(reports().size(), 1);
}

void NoticeWindowTest::noReportReplacesAnother() {
    show(noteOf(u"clock"_s, {}));
    button()->click();
    button()->click();
    QCOMPARE(reports().size(), 2);
}

void NoticeWindowTest::failureIsTold() {
    QFile inTheWay(reportsDirectory());
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    show(noteOf(u"clock"_s, {}));
    button()->click();
    QVERIFY(message().startsWith(u"Report not saved: "_s));
}

void NoticeWindowTest::longTraceFitsTheScreen() {
    show(noteOf(u"clock"_s, u"[bt]: (1) /a/very/long/path"_s.repeated(500)));
    QCOMPARE(window->size(), QSize(720, 420));
    QVERIFY(window->rect().contains(button()->geometry()));
}

void NoticeWindowTest::buttonIsHighEnoughForAThumb() {
    show(noteOf(u"clock"_s, {}));
    QVERIFY(button()->height() >= 52);
}

QTEST_MAIN(NoticeWindowTest)
#include "tst_noticewindow.moc"
