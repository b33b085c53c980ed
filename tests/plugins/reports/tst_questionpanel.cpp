// SPDX-License-Identifier: GPL-3.0-or-later
#include "questionpanel.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class QuestionPanelTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void liesOverItsParentOnlyWhileItAsks();
    void followsItsParentsSize();
    void yesAccepts();
    void noOnlyCloses();
    void escapeIsNo();
    void enterAnswersNoUnlessYesIsChosen();
    void focusDoesNotLeaveTheButtons();
    void buttonsAreHighEnoughForAThumb();
    void longSubjectStaysInsideTheBox();
    void otherKeysDoNotReachThePageBelow();

private:
    QPushButton *button(const QString &text) const;

    std::unique_ptr<QWidget> window;
    QuestionPanel *panel = nullptr;
};

void QuestionPanelTest::init() {
    QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s));
    window = std::make_unique<QWidget>();
    window->resize(720, 420);
    panel = new QuestionPanel(window.get());
    window->show();
    QApplication::setActiveWindow(window.get());
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
}

QPushButton *QuestionPanelTest::button(const QString &text) const {
    for (QPushButton *const candidate : panel->findChildren<QPushButton *>()) {
        if (candidate->text() == text)
            return candidate;
    }
    return nullptr;
}

void QuestionPanelTest::liesOverItsParentOnlyWhileItAsks() {
    QVERIFY(!panel->isVisible());
    panel->ask(u"Delete?"_s, u"report"_s);
    QVERIFY(panel->isVisible());
    QCOMPARE(panel->geometry(), window->rect());
}

void QuestionPanelTest::followsItsParentsSize() {
    panel->ask(u"Delete?"_s, u"report"_s);
    window->resize(720, 540);
    QTRY_COMPARE(panel->geometry(), window->rect());
}

void QuestionPanelTest::yesAccepts() {
    const QSignalSpy accepted(panel, &QuestionPanel::accepted);
    panel->ask(u"Delete?"_s, u"report"_s);
    QTest::mouseClick(button(u"Yes"_s), Qt::LeftButton);
    QCOMPARE(accepted.count(), 1);
    QVERIFY(!panel->isVisible());
}

void QuestionPanelTest::noOnlyCloses() {
    const QSignalSpy accepted(panel, &QuestionPanel::accepted);
    const QSignalSpy closed(panel, &QuestionPanel::closed);
    panel->ask(u"Delete?"_s, u"report"_s);
    QTest::mouseClick(button(u"No"_s), Qt::LeftButton);
    QCOMPARE(accepted.count(), 0);
    QCOMPARE(closed.count(), 1);
    QVERIFY(!panel->isVisible());
}

void QuestionPanelTest::escapeIsNo() {
    const QSignalSpy accepted(panel, &QuestionPanel::accepted);
    panel->ask(u"Delete?"_s, u"report"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QCOMPARE(accepted.count(), 0);
    QVERIFY(!panel->isVisible());
}

void QuestionPanelTest::enterAnswersNoUnlessYesIsChosen() {
    const QSignalSpy accepted(panel, &QuestionPanel::accepted);
    panel->ask(u"Delete?"_s, u"report"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(accepted.count(), 0);
    QVERIFY(!panel->isVisible());

    panel->ask(u"Delete?"_s, u"report"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
    QCOMPARE(QApplication::focusWidget(), button(u"Yes"_s));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(accepted.count(), 1);
}

void QuestionPanelTest::focusDoesNotLeaveTheButtons() {
    QPushButton below(window.get());
    below.show();
    panel->ask(u"Delete?"_s, u"report"_s);
    for (int presses = 0; presses < 4; ++presses) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(panel->isAncestorOf(QApplication::focusWidget()));
    }
}

void QuestionPanelTest::buttonsAreHighEnoughForAThumb() {
    panel->ask(u"Delete?"_s, u"report"_s);
    QVERIFY(button(u"Yes"_s)->height() >= 52);
    QVERIFY(button(u"No"_s)->height() >= 52);
}

void QuestionPanelTest::longSubjectStaysInsideTheBox() {
    panel->ask(u"Delete?"_s, QString(400, u'W'));
    for (const QLabel *const label : panel->findChildren<QLabel *>())
        QVERIFY(label->sizeHint().width() <= label->width());
}

void QuestionPanelTest::otherKeysDoNotReachThePageBelow() {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
    press.ignore();
    panel->ask(u"Delete?"_s, u"report"_s);
    QApplication::sendEvent(panel, &press);
    QVERIFY(press.isAccepted());
}

QTEST_MAIN(QuestionPanelTest)
#include "tst_questionpanel.moc"
