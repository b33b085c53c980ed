// SPDX-License-Identifier: GPL-3.0-or-later
#include "flash/flashdialog.h"

#include "testconfig.h"
#include "zrlauncherconfig.h"

#include <styleoverride.h>
#include <warningwindow.h>

#include <QFrame>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <functional>
#include <memory>

using namespace Qt::Literals::StringLiterals;

class FlashDialogTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void questionNamesTheFolder();
    void partsStandInTheirOrder();
    void styleSheetsAreTheFramesOwn();
    void progressIsWhatIsDone_data();
    void progressIsWhatIsDone();
    void everyShowingResetsTheBar();
    void noIsStored();
    void keysReject_data();
    void keysReject();
    void enterPressesTheButtonThatHasTheFocus_data();
    void enterPressesTheButtonThatHasTheFocus();
    void yesBeginsTheExportAndTheDialogStays();
    void finishedCopyIsStored();
    void keysDoNotEndARunningCopy();
    void pulledDriveIsStoredAsNo();
    void lateEndOfACopyDoesNotTurnTheAnswerRound();
    void driveThatComesWhileAnAnswerIsOnItsWayIsAskedAbout_data();
    void driveThatComesWhileAnAnswerIsOnItsWayIsAskedAbout();
    void answerCountsForTheDriveThatWasAskedAbout_data();
    void answerCountsForTheDriveThatWasAskedAbout();
    void windowMayGoWhileItIsAsked();
    void warningIsMadeOnceAndShownWithoutTheDialog();
    void unreadWarningStaysInFrontOfTheQuestion();
    void nothingIsClipped_data();
    void nothingIsClipped();

private:
    static QString save() { return ZrLauncherConfig(u"flash"_s, u"save"_s).string(); }
    QPushButton *button(const QString &text) const {
        for (QPushButton *const candidate : dialog->findChildren<QPushButton *>()) {
            if (candidate->text() == text)
                return candidate;
        }
        return nullptr;
    }
    QProgressBar *bar() const { return dialog->findChild<QProgressBar *>(); }
    QLabel *label() const { return dialog->findChild<QLabel *>(); }
    /// Shows the dialog and does `work` while it is open; returns when it is closed.
    void showWhile(const std::function<void()> &work) {
        QTimer::singleShot(0, this, work);
        dialog->showDialog();
    }

    TestConfig config;
    std::unique_ptr<QWidget> window;
    FlashDialog *dialog = nullptr;
};

void FlashDialogTest::initTestCase() {
    // Sizes as in the launcher.
    QApplication::setFont(QFont(u"Liberation Sans"_s));
    QApplication::setStyle(new StyleOverride(QApplication::style()));
}

void FlashDialogTest::init() {
    config = TestConfig();
    config.set(u"paths/main"_s, u"reports"_s);
    window = std::make_unique<QWidget>();
    window->resize(800, 480);
    window->show();
    dialog = new FlashDialog(window.get());
}

void FlashDialogTest::cleanup() {
    window.reset();
}

void FlashDialogTest::questionNamesTheFolder() {
    QCOMPARE(label()->text(),
             u"Do you want to copy all saved reports and trace files to flash?\n\n They will be saved to "
             "\"reports\" folder of\n a root directory of your flash card.\n\n All following reports and "
             "trace files will be saved to device\n as well as to flash card."_s);
    QCOMPARE(label()->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    QCOMPARE(label()->font().pointSize(), 18);
    QVERIFY(label()->font().bold());
    config.set(u"paths/main"_s, u"a %1 b"_s);
    const FlashDialog another(window.get());
    QVERIFY(another.findChild<QLabel *>()->text().contains(u"\"a %1 b\""_s));
}

void FlashDialogTest::partsStandInTheirOrder() {
    auto *const frame = qobject_cast<QFrame *>(label()->parentWidget());
    QVERIFY(frame);
    QCOMPARE(frame->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));
    auto *const column = qobject_cast<QVBoxLayout *>(frame->layout());
    QVERIFY(column);
    QCOMPARE(column->spacing(), 8);
    QCOMPARE(column->count(), 3);
    QCOMPARE(column->itemAt(0)->widget(), label());
    QCOMPARE(column->itemAt(1)->widget(), bar()->parentWidget());
    const QLayout *const row = column->itemAt(2)->layout();
    QCOMPARE(row->itemAt(0)->widget(), button(u"Yes"_s));
    QCOMPARE(row->itemAt(2)->widget(), button(u"No"_s));
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(column->stretch(i), QList<int>({5, 0, 1}).at(i));
        QCOMPARE(static_cast<const QBoxLayout *>(row)->stretch(i), QList<int>({1, 2, 1}).at(i));
    }
    QCOMPARE(bar()->minimum(), 0);
    QCOMPARE(bar()->maximum(), 100);
}

void FlashDialogTest::styleSheetsAreTheFramesOwn() {
    QCOMPARE(label()->parentWidget()->styleSheet(),
             u" QFrame { border-radius: 10px; border: 2px solid rgba( 45, 59, 111, 255 );background-color: "
             "rgba( 235, 233, 255, 255 );font: inherit;font-size: inherit;}"_s);
    QCOMPARE(bar()->parentWidget()->styleSheet(), u" QFrame { border: 0px; }"_s);
}

void FlashDialogTest::progressIsWhatIsDone_data() {
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("total");
    QTest::addColumn<int>("percent");
    QTest::newRow("nothing to do") << 0 << 0 << 100;
    QTest::newRow("half") << 5 << 10 << 50;
    QTest::newRow("a third left") << 1 << 3 << 67;
    QTest::newRow("two thirds left") << 2 << 3 << 33;
    QTest::newRow("beginning") << 7 << 7 << 0;
    QTest::newRow("end") << 0 << 7 << 100;
    QTest::newRow("half a per cent goes up") << 7 << 8 << 13;
    QTest::newRow("large") << 2000000000 << 2147483647 << 7;
}

void FlashDialogTest::progressIsWhatIsDone() {
    QFETCH(int, left);
    QFETCH(int, total);
    dialog->setProgress(left, total);
    QTEST(bar()->value(), "percent");
}

void FlashDialogTest::everyShowingResetsTheBar() {
    dialog->setProgress(1, 2);
    bar()->setTextVisible(true);
    bool wasHidden = false;
    int value = -1;
    showWhile([&] {
        wasHidden = bar()->isHidden() && !bar()->isTextVisible();
        value = bar()->value();
        button(u"No"_s)->click();
    });
    QVERIFY(wasHidden);
    QCOMPARE(value, 0);
}

void FlashDialogTest::noIsStored() {
    config.set(u"flash/save"_s, true);
    showWhile([this] { button(u"No"_s)->click(); });
    QCOMPARE(save(), u"false"_s);
    QVERIFY(!dialog->isVisible());
}

void FlashDialogTest::keysReject_data() {
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("escape") << Qt::Key_Escape;
    QTest::newRow("back") << Qt::Key_Back;
}

void FlashDialogTest::keysReject() {
    QFETCH(Qt::Key, key);
    showWhile([&] { QTest::keyClick(dialog, key); });
    QCOMPARE(save(), u"false"_s);
}

void FlashDialogTest::enterPressesTheButtonThatHasTheFocus_data() {
    QTest::addColumn<QString>("focused");
    QTest::addColumn<int>("exported");
    QTest::newRow("Yes") << u"Yes"_s << 1;
    QTest::newRow("No") << u"No"_s << 0;
}

void FlashDialogTest::enterPressesTheButtonThatHasTheFocus() {
    QFETCH(QString, focused);
    QFETCH(int, exported);
    const QSignalSpy exports(dialog, &FlashDialog::exportFiles);
    showWhile([&] {
        button(focused)->setFocus();
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
        dialog->closeGracefully();
    });
    QCOMPARE(exports.size(), exported);
    QVERIFY(!dialog->isVisible());
}

void FlashDialogTest::yesBeginsTheExportAndTheDialogStays() {
    const QSignalSpy exports(dialog, &FlashDialog::exportFiles);
    bool wasOpen = false;
    showWhile([&] {
        button(u"Yes"_s)->click();
        wasOpen = dialog->isVisible() && bar()->isVisible() && bar()->isTextVisible() &&
                  !button(u"Yes"_s)->isEnabled() && !button(u"No"_s)->isEnabled();
        dialog->closeGracefully();
    });
    QVERIFY(wasOpen);
    QCOMPARE(exports.size(), 1);
}

void FlashDialogTest::finishedCopyIsStored() {
    showWhile([this] {
        button(u"Yes"_s)->click();
        dialog->closeGracefully();
    });
    QCOMPARE(save(), u"true"_s);
    QVERIFY(button(u"Yes"_s)->isEnabled());
    QVERIFY(button(u"No"_s)->isEnabled());
}

void FlashDialogTest::keysDoNotEndARunningCopy() {
    bool stayedOpen = false;
    showWhile([&] {
        button(u"Yes"_s)->click();
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Back, Qt::Key_Return, Qt::Key_Space})
            QTest::keyClick(dialog, key);
        dialog->close();
        stayedOpen = dialog->isVisible();
        dialog->closeGracefully();
    });
    QVERIFY(stayedOpen);
    QCOMPARE(save(), u"true"_s);
}

void FlashDialogTest::pulledDriveIsStoredAsNo() {
    showWhile([this] {
        button(u"Yes"_s)->click();
        dialog->done(QDialog::Rejected);
    });
    QCOMPARE(save(), u"false"_s);
}

void FlashDialogTest::lateEndOfACopyDoesNotTurnTheAnswerRound() {
    showWhile([this] {
        button(u"Yes"_s)->click();
        dialog->done(QDialog::Rejected);
        dialog->closeGracefully();
    });
    QCOMPARE(save(), u"false"_s);
    QVERIFY(button(u"Yes"_s)->isEnabled());
}

void FlashDialogTest::driveThatComesWhileAnAnswerIsOnItsWayIsAskedAbout_data() {
    QTest::addColumn<QString>("mountDirectory");
    QTest::addColumn<bool>("isAsked");
    QTest::newRow("still there") << u"/media/sda1"_s << true;
    QTest::newRow("gone again") << QString() << false;
}

void FlashDialogTest::driveThatComesWhileAnAnswerIsOnItsWayIsAskedAbout() {
    QFETCH(QString, mountDirectory);
    QFETCH(bool, isAsked);
    showWhile([&] {
        dialog->done(QDialog::Rejected);
        dialog->showDialog();
        config.set(u"flash/dir"_s, mountDirectory);
    });
    bool wasAsked = false;
    QTimer::singleShot(0, this, [&] {
        wasAsked = dialog->isVisible();
        dialog->done(QDialog::Rejected);
    });
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    QCOMPARE(wasAsked, isAsked);
}

void FlashDialogTest::answerCountsForTheDriveThatWasAskedAbout_data() {
    QTest::addColumn<QString>("atTheEnd");
    QTest::addColumn<QString>("save");
    QTest::newRow("same") << u"/media/sda1"_s << u"true"_s;
    QTest::newRow("pulled") << QString() << u"false"_s;
    QTest::newRow("another") << u"/media/sdb1"_s << u"false"_s;
}

void FlashDialogTest::answerCountsForTheDriveThatWasAskedAbout() {
    QFETCH(QString, atTheEnd);
    config.set(u"flash/dir"_s, u"/media/sda1"_s);
    showWhile([&] {
        button(u"Yes"_s)->click();
        dialog->closeGracefully();
        config.set(u"flash/dir"_s, atTheEnd);
    });
    QTEST(save(), "save");
}

void FlashDialogTest::windowMayGoWhileItIsAsked() {
    config.set(u"flash/save"_s, true);
    showWhile([&] { window.reset(); });
    QCOMPARE(save(), u"false"_s);
}

void FlashDialogTest::warningIsMadeOnceAndShownWithoutTheDialog() {
    QVERIFY(!dialog->findChild<WarningWindow *>());
    dialog->showWarning(u"One"_s);
    auto *const warning = dialog->findChild<WarningWindow *>();
    QVERIFY(warning);
    QVERIFY(warning->isVisible());
    QVERIFY(!dialog->isVisible());
    QCOMPARE(warning->geometry(), window->geometry());
    QCOMPARE(warning->findChild<QTextEdit *>()->toPlainText(), u"One"_s);
    dialog->showWarning(u"Two"_s);
    warning->accept();
    QTRY_COMPARE(warning->findChild<QTextEdit *>()->toPlainText(), u"Two"_s);
    QCOMPARE(dialog->findChildren<WarningWindow *>().size(), 1);
    warning->accept();
}

void FlashDialogTest::unreadWarningStaysInFrontOfTheQuestion() {
    bool wasQuestionOpen = false;
    showWhile([&] {
        dialog->showWarning(u"Pulled"_s);
        dialog->done(QDialog::Rejected);
    });
    auto *const warning = dialog->findChild<WarningWindow *>();
    QTRY_COMPARE(QApplication::activeWindow(), warning);
    showWhile([&] {
        QTRY_COMPARE(QApplication::activeWindow(), warning);
        wasQuestionOpen = dialog->isVisible();
        // As the screen's own key, which a dialog that blocked the message would swallow.
        QTest::keyClick(warning->windowHandle(), Qt::Key_Return);
        QTRY_COMPARE(QApplication::activeWindow(), dialog);
        QVERIFY(!warning->isVisible());
        button(u"No"_s)->click();
    });
    QVERIFY(wasQuestionOpen);
}

void FlashDialogTest::nothingIsClipped_data() {
    QTest::addColumn<int>("height");
    QTest::addColumn<QString>("folder");
    for (const int height : {480, 600}) {
        QTest::addRow("%d", height) << height << u"reports"_s;
        QTest::addRow("%d longer lines", height) << height << u"measurements and traces"_s.repeated(2);
        QTest::addRow("%d long folder", height)
            << height << u"measurements and traces of the line"_s.repeated(4);
    }
}

void FlashDialogTest::nothingIsClipped() {
    QFETCH(int, height);
    QFETCH(QString, folder);
    config.set(u"paths/main"_s, folder);
    window->resize(800, height);
    dialog = new FlashDialog(window.get());
    QRect frame;
    QSize needed;
    QSize given;
    showWhile([&] {
        button(u"Yes"_s)->click();
        QTest::qWait(0);
        frame = QRect(label()->parentWidget()->mapTo(dialog, QPoint()), label()->parentWidget()->size());
        given = label()->size();
        needed = label()->wordWrap() ? QSize(0, label()->heightForWidth(given.width())) : label()->sizeHint();
        dialog->closeGracefully();
    });
    QCOMPARE(dialog->geometry(), window->geometry());
    QVERIFY2(dialog->rect().contains(frame), qPrintable(QDebug::toString(frame)));
    QVERIFY2(given.width() >= needed.width() && given.height() >= needed.height(),
             qPrintable(QDebug::toString(needed)));
}

QTEST_MAIN(FlashDialogTest)
#include "tst_flashdialog.moc"
