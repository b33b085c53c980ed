// SPDX-License-Identifier: GPL-3.0-or-later
#include "visibletimer.h"

#include <QSignalSpy>
#include <QTest>
#include <QWidget>

using namespace std::chrono_literals;

class VisibleTimerTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void restsUntilTheWidgetAppears();
    void beatsAtOnceAndThenAgain();
    void appearanceIsToldBeforeTheFirstBeat();
    void restsWhileTheWidgetIsHidden();
    void followsTheWidgetsParent();
};

void VisibleTimerTest::init() {
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^QObject::connect")));
}

void VisibleTimerTest::restsUntilTheWidgetAppears() {
    QWidget widget;
    const VisibleTimer timer(&widget);
    QVERIFY(!timer.isRunning());
}

void VisibleTimerTest::beatsAtOnceAndThenAgain() {
    QWidget widget;
    auto *const timer = new VisibleTimer(&widget);
    timer->setInterval(1ms);
    const QSignalSpy beats(timer, &VisibleTimer::beat);
    widget.show();
    QCOMPARE(beats.count(), 1);
    QTRY_VERIFY(beats.count() > 2);
}

void VisibleTimerTest::appearanceIsToldBeforeTheFirstBeat() {
    QWidget widget;
    auto *const timer = new VisibleTimer(&widget);
    QStringList order;
    connect(timer, &VisibleTimer::appeared, this, [&] { order.append(QStringLiteral("appeared")); });
    connect(timer, &VisibleTimer::beat, this, [&] { order.append(QStringLiteral("beat")); });
    widget.show();
    QCOMPARE(order, QStringList({QStringLiteral("appeared"), QStringLiteral("beat")}));
}

void VisibleTimerTest::restsWhileTheWidgetIsHidden() {
    QWidget widget;
    auto *const timer = new VisibleTimer(&widget);
    widget.show();
    QVERIFY(timer->isRunning());
    widget.hide();
    QVERIFY(!timer->isRunning());
}

void VisibleTimerTest::followsTheWidgetsParent() {
    QWidget panel;
    auto *const widget = new QWidget(&panel);
    auto *const timer = new VisibleTimer(widget);
    panel.show();
    QVERIFY(timer->isRunning());
    panel.hide();
    QVERIFY(!timer->isRunning());
}

QTEST_MAIN(VisibleTimerTest)
#include "tst_visibletimer.moc"
