// SPDX-License-Identifier: GPL-3.0-or-later
#include "factrow.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

class PaintCounter : public QObject {
public:
    bool eventFilter(QObject *, QEvent *event) override {
        paints += event->type() == QEvent::Paint;
        return false;
    }
    int paints = 0;
};

} // namespace

class FactRowTest : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s)); }
    void rowThatLeadsOnAnswersTouchAndKeys();
    void plainRowCannotBePressed();
    void rowThatLeadsOnIsHighEnoughForAThumb();
    void sameFactIsNotPaintedAgain();
};

void FactRowTest::rowThatLeadsOnAnswersTouchAndKeys() {
    FactRow row(FactRow::LeadsOn);
    row.resize(688, 52);
    row.QWidget::show();
    const QSignalSpy clicks(&row, &FactRow::clicked);
    QTest::mouseClick(&row, Qt::LeftButton);
    QTest::keyClick(&row, Qt::Key_Return);
    QTest::keyClick(&row, Qt::Key_Space);
    QCOMPARE(clicks.count(), 3);
}

void FactRowTest::plainRowCannotBePressed() {
    const FactRow row(FactRow::Plain);
    QCOMPARE(row.focusPolicy(), Qt::NoFocus);
    QVERIFY(row.testAttribute(Qt::WA_TransparentForMouseEvents));
}

void FactRowTest::rowThatLeadsOnIsHighEnoughForAThumb() {
    QVERIFY(FactRow(FactRow::LeadsOn).minimumHeight() >= 52);
}

void FactRowTest::sameFactIsNotPaintedAgain() {
    const Fact fact{u"Memory"_s, u"half"_s, 50};
    FactRow row(FactRow::Plain);
    PaintCounter counter;
    row.installEventFilter(&counter);
    row.show(fact);
    row.QWidget::show();
    QVERIFY(QTest::qWaitForWindowActive(&row));
    QTRY_VERIFY(counter.paints > 0);
    QCoreApplication::processEvents();
    const int painted = counter.paints;
    row.show(fact);
    QCoreApplication::processEvents();
    QCOMPARE(counter.paints, painted);
    row.show({u"Memory"_s, u"more"_s, 60});
    QTRY_VERIFY(counter.paints > painted);
}

QTEST_MAIN(FactRowTest)
#include "tst_factrow.moc"
