// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/launcherheader.h"

#include <timebutton.h>

#include <QHBoxLayout>
#include <QPushButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class LauncherHeaderTest : public QObject {
    Q_OBJECT

private slots:
    void backButtonStartsHiddenLeftOfTheClock();
    void sizesAreFixed();
    void captionIsTheLabelsOwnText();
    void backTextStandsBehindAPointer_data();
    void backTextStandsBehindAPointer();
    void backButtonCanBeHiddenAgain();
    void clockHasItsOwnPalette();

private:
    LauncherHeader header;
};

void LauncherHeaderTest::backButtonStartsHiddenLeftOfTheClock() {
    QVERIFY(header.backButton()->isHidden());
    const auto *const layout = qobject_cast<QHBoxLayout *>(header.layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), 3);
    QCOMPARE(layout->itemAt(0)->widget(), header.backButton());
    QVERIFY(layout->itemAt(1)->spacerItem());
    QVERIFY(qobject_cast<TimeButton *>(layout->itemAt(2)->widget()));
}

void LauncherHeaderTest::sizesAreFixed() {
    QCOMPARE(header.minimumHeight(), 58);
    QCOMPARE(header.backButton()->minimumSize(), QSize(150, 46));
    QCOMPARE(header.layout()->contentsMargins(), QMargins(6, 6, 6, 6));
    QCOMPARE(header.alignment(), Qt::AlignCenter);
}

void LauncherHeaderTest::captionIsTheLabelsOwnText() {
    header.setText(u"PCM"_s);
    QCOMPARE(header.text(), u"PCM"_s);
}

void LauncherHeaderTest::backTextStandsBehindAPointer_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::newRow("text") << u"PCM"_s << u"\u25C4 PCM"_s;
    QTest::newRow("empty text still shows the button") << QString() << u"\u25C4 "_s;
}

void LauncherHeaderTest::backTextStandsBehindAPointer() {
    QFETCH(QString, text);
    header.hideBackButton();
    header.setBackButtonText(text);
    QTEST(header.backButton()->text(), "shown");
    QVERIFY(!header.backButton()->isHidden());
}

void LauncherHeaderTest::backButtonCanBeHiddenAgain() {
    header.setBackButtonText(u"PCM"_s);
    header.hideBackButton();
    QVERIFY(header.backButton()->isHidden());
}

void LauncherHeaderTest::clockHasItsOwnPalette() {
    QCOMPARE(header.findChild<TimeButton *>()->property("palette_id").toString(), u"TimeButton"_s);
}

QTEST_MAIN(LauncherHeaderTest)
#include "tst_launcherheader.moc"
