// SPDX-License-Identifier: GPL-3.0-or-later
#include "warningwindow.h"

#include "messageview.h"

#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <memory>

using namespace Qt::Literals::StringLiterals;

class WarningWindowTest : public QObject {
    Q_OBJECT

private slots:
    void init();

    void messageCoversItsWindow();
    void messagesWaitForEachOther();
    void sameMessageIsNotShownTwice();
    void messageHiddenFromOutsideCountsAsRead();
    void messageWaitsForItsWindow();
    void questionIsAnsweredByButtonAndKey_data();
    void questionIsAnsweredByButtonAndKey();
    void questionOverAMessageBringsTheMessageBack();
    void focusGoesFromButtonToButton();
    void enterPressesTheButtonThatHasTheFocus();
    void textIsShownAsItIs_data();
    void textIsShownAsItIs();
    void longTextScrollsByKeys();
    void tooManyMessagesAreToldElsewhere();
    void unreadMessagesAreHandedOver();
    void dialogFollowsItsWindow();

private:
    QString shownText() const { return dialog->findChild<MessageView *>()->toPlainText(); }
    QPushButton *button(const QString &text) const {
        for (QPushButton *const candidate : dialog->findChildren<QPushButton *>()) {
            if (candidate->text() == text && candidate->isVisible())
                return candidate;
        }
        return nullptr;
    }
    int ask(const std::function<void()> &answer) {
        QTimer::singleShot(0, this, answer);
        return dialog->exec(u"Really?"_s, QString(), u"Yes"_s, u"No"_s);
    }

    std::unique_ptr<QWidget> window;
    WarningWindow *dialog = nullptr;
};

void WarningWindowTest::init() {
    window = std::make_unique<QWidget>();
    window->resize(800, 480);
    window->show();
    dialog = new WarningWindow(window.get());
}

void WarningWindowTest::messageCoversItsWindow() {
    window->move(30, 20);
    dialog->show(u"Line is down"_s, u"Card e1"_s);
    QVERIFY(dialog->isVisible());
    QVERIFY(dialog->isModal());
    QCOMPARE(dialog->geometry(), window->geometry());
    QCOMPARE(shownText(), u"Line is down\nCard e1"_s);
    QVERIFY(button(u"OK"_s)->height() >= 52);
    const QPoint middle = button(u"OK"_s)->mapTo(dialog, button(u"OK"_s)->rect().center());
    QVERIFY2(qAbs(middle.x() - 400) <= 2, qPrintable(QString::number(middle.x())));
}

void WarningWindowTest::messagesWaitForEachOther() {
    dialog->show(u"one"_s, QString());
    dialog->show(u"two"_s, QString());
    dialog->show(u"three"_s, QString());
    QCOMPARE(shownText(), u"one"_s);
    button(u"OK"_s)->click();
    QTRY_COMPARE(shownText(), u"two"_s);
    QTRY_VERIFY(dialog->isVisible());
    QTest::keyClick(dialog, Qt::Key_Escape);
    QTRY_COMPARE(shownText(), u"three"_s);
    QTRY_VERIFY(dialog->isVisible());
    QTest::keyClick(dialog, Qt::Key_Return);
    QTRY_VERIFY(!dialog->isVisible());
    dialog->show(u"one"_s, QString());
    QVERIFY(dialog->isVisible());
}

void WarningWindowTest::sameMessageIsNotShownTwice() {
    for (int i = 0; i < 1000; ++i)
        dialog->show(u"again"_s, QString());
    dialog->accept();
    QCoreApplication::processEvents();
    QVERIFY(!dialog->isVisible());
}

void WarningWindowTest::messageHiddenFromOutsideCountsAsRead() {
    dialog->show(u"one"_s, QString());
    dialog->hide();
    dialog->show(u"two"_s, QString());
    QTRY_VERIFY(dialog->isVisible());
    QCOMPARE(shownText(), u"two"_s);
}

void WarningWindowTest::messageWaitsForItsWindow() {
    window->hide();
    dialog->show(u"early"_s, QString());
    QVERIFY(!dialog->isVisible());
    window->show();
    QTRY_VERIFY(dialog->isVisible());
    QCOMPARE(shownText(), u"early"_s);
}

void WarningWindowTest::questionIsAnsweredByButtonAndKey_data() {
    QTest::addColumn<QString>("press");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("isAccepted");
    QTest::newRow("Yes") << u"Yes"_s << 0 << true;
    QTest::newRow("No") << u"No"_s << 0 << false;
    QTest::newRow("Enter") << QString() << int(Qt::Key_Return) << true;
    QTest::newRow("Escape") << QString() << int(Qt::Key_Escape) << false;
    QTest::newRow("Back") << QString() << int(Qt::Key_Back) << false;
}

void WarningWindowTest::questionIsAnsweredByButtonAndKey() {
    QFETCH(QString, press);
    QFETCH(int, key);
    QFETCH(bool, isAccepted);
    const int answer = ask([&] {
        if (press.isEmpty())
            QTest::keyClick(dialog, Qt::Key(key));
        else
            button(press)->click();
    });
    QCOMPARE(answer != 0, isAccepted);
}

void WarningWindowTest::questionOverAMessageBringsTheMessageBack() {
    dialog->show(u"message"_s, QString());
    QString duringQuestion;
    ask([&] {
        duringQuestion = shownText();
        dialog->show(u"another"_s, QString());
        dialog->reject();
    });
    QCOMPARE(duringQuestion, u"Really?"_s);
    QTRY_VERIFY(dialog->isVisible());
    QCOMPARE(shownText(), u"message"_s);
    dialog->accept();
    QTRY_COMPARE(shownText(), u"another"_s);
}

void WarningWindowTest::focusGoesFromButtonToButton() {
    QWidget *first = nullptr;
    QWidget *second = nullptr;
    QWidget *third = nullptr;
    ask([&] {
        dialog->activateWindow();
        first = dialog->focusWidget();
        QTest::keyClick(dialog, Qt::Key_Right);
        second = dialog->focusWidget();
        QTest::keyClick(dialog, Qt::Key_Left);
        third = dialog->focusWidget();
        dialog->reject();
    });
    QVERIFY(first && second);
    QVERIFY(first != second);
    QCOMPARE(third, first);
}

void WarningWindowTest::enterPressesTheButtonThatHasTheFocus() {
    const int answer = ask([&] {
        button(u"No"_s)->setFocus();
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
    });
    QCOMPARE(answer, 0);
}

void WarningWindowTest::textIsShownAsItIs_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::newRow("markup") << u"<b>x</b> &amp;"_s << u"<b>x</b> &amp;"_s;
    QTest::newRow("very long") << QString(100'000, u'x') << QString(QString(4000, u'x') + u'…');
    QTest::newRow("empty") << QString() << QString();
}

void WarningWindowTest::textIsShownAsItIs() {
    QFETCH(QString, text);
    dialog->show(text, QString());
    QTEST(shownText(), "shown");
    const auto *const view = dialog->findChild<MessageView *>();
    QVERIFY(dialog->rect().contains(QRect(view->mapTo(dialog, QPoint()), view->size())));
}

void WarningWindowTest::longTextScrollsByKeys() {
    dialog->show(u"word "_s.repeated(600), QString());
    const auto *const bar = dialog->findChild<MessageView *>()->verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    QTest::keyClick(dialog, Qt::Key_Down);
    QVERIFY(bar->value() > 0);
    QTest::keyClick(dialog, Qt::Key_PageDown);
    QTest::keyClick(dialog, Qt::Key_PageUp);
    QTest::keyClick(dialog, Qt::Key_Up);
    QCOMPARE(bar->value(), 0);
    QVERIFY(dialog->rect().contains(button(u"OK"_s)->mapTo(dialog, button(u"OK"_s)->rect().bottomRight())));
}

void WarningWindowTest::tooManyMessagesAreToldElsewhere() {
    for (int i = 0; i < 60; ++i)
        dialog->show(QString::number(i), QString());
    int read = 0;
    while (dialog->isVisible() && read < 100) {
        ++read;
        dialog->accept();
        QCoreApplication::processEvents();
    }
    QCOMPARE(read, 50);
}

void WarningWindowTest::unreadMessagesAreHandedOver() {
    auto *const heir = new WarningWindow(window.get());
    dialog->show(u"one"_s, QString());
    dialog->show(u"two"_s, QString());
    const QPointer<WarningWindow> old = dialog;
    dialog->handOverTo(heir);
    QTRY_VERIFY(!old);
    dialog = heir;
    QVERIFY(heir->isVisible());
    QCOMPARE(shownText(), u"one"_s);
    heir->accept();
    QTRY_COMPARE(shownText(), u"two"_s);
}

void WarningWindowTest::dialogFollowsItsWindow() {
    dialog->show(u"one"_s, QString());
    window->resize(800, 600);
    QTRY_COMPARE(dialog->geometry(), window->geometry());
}

QTEST_MAIN(WarningWindowTest)
#include "tst_warningwindow.moc"
