// SPDX-License-Identifier: GPL-3.0-or-later
#include "messageline.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class MessageLineTest : public QObject {
    Q_OBJECT

private slots:
    void isHiddenWhileThereIsNothingToTell();
    void tellsAndIsCleared();
    void failureLooksDifferentFromSuccess();
};

void MessageLineTest::isHiddenWhileThereIsNothingToTell() {
    QWidget window;
    const MessageLine line(&window);
    QVERIFY(line.isHidden());
}

void MessageLineTest::tellsAndIsCleared() {
    QWidget window;
    MessageLine line(&window);
    line.tellFailure(u"No space left"_s);
    QCOMPARE(line.message(), u"No space left"_s);
    QVERIFY(!line.isHidden());
    line.clear();
    QVERIFY(line.message().isEmpty());
    QVERIFY(line.isHidden());
}

void MessageLineTest::failureLooksDifferentFromSuccess() {
    QWidget window;
    MessageLine line(&window);
    line.resize(720, line.height());
    line.tellSuccess(u"text"_s);
    const QImage success = line.grab().toImage();
    line.tellFailure(u"text"_s);
    QVERIFY(line.grab().toImage() != success);
}

QTEST_MAIN(MessageLineTest)
#include "tst_messageline.moc"
