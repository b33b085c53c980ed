// SPDX-License-Identifier: GPL-3.0-or-later
#include "lamp.h"
#include "ledpanel.h"

#include <palettefactory.h>

#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

using States = QList<QPair<QString, QString>>;

/// Remembers which part of the panel was painted.
class WatchedPanel : public LedPanel {
public:
    using LedPanel::LedPanel;
    QRegion painted;

protected:
    void paintEvent(QPaintEvent *event) override {
        painted += event->region();
        LedPanel::paintEvent(event);
    }
};

void addLamps(LedPanel &panel, int count) {
    for (int i = 0; i < count; ++i)
        panel.add(u"LED%1"_s.arg(i), MeasQuality(i % 4));
    panel.invokeRebuild();
}

/// Height of the first name's capitals, in pixels.
int capitalHeight(LedPanel &panel) {
    constexpr int namesLeft = 24;
    const QImage picture = panel.grab().toImage();
    const QColor ground = panel.palette().color(QPalette::Base);
    const auto isInked = [&](int y) {
        for (int x = namesLeft; x < picture.width() - 4; ++x) {
            if (picture.pixelColor(x, y) != ground)
                return true;
        }
        return false;
    };
    int top = 0;
    while (top < picture.height() && !isInked(top))
        ++top;
    int bottom = top;
    while (bottom < picture.height() && isInked(bottom))
        ++bottom;
    return bottom - top;
}

QImage lampPicture(MeasQuality quality) {
    QImage picture(20, 20, QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    drawLamp(&painter, picture.rect(), quality);
    return picture;
}

} // namespace

class LedPanelTest : public QObject {
    Q_OBJECT

private slots:
    void stateTextsStandForQualities_data();
    void stateTextsStandForQualities();
    void lampsDifferInShapeNotOnlyInColour();
    void onlyTheChangedLampIsPaintedAgain();
    void unchangedStatesPaintNothing();
    void allLampsOfANameFollow();
    void rebuildWaitsUntilItIsAskedFor();
    void pressAndReleaseInsideIsAClick();
    void releaseOutsideIsNone();
    void keysClickToo();
    void ringTellsThatThePanelIsHeld();
    void manyLampsCanBeScrolled();
    void arrowKeysScroll();
    void dragIsNoClickAndAPressAfterItIs();
    void markShowsThatThereIsMore_data();
    void markShowsThatThereIsMore();
    void lettersAreAsLargeAsRowsAndNamesAllow_data();
    void lettersAreAsLargeAsRowsAndNamesAllow();
    void hugeInputIsDrawnInNoTime();
    void anyWidthIsDrawn();
};

void LedPanelTest::stateTextsStandForQualities_data() {
    QTest::addColumn<QString>("state");
    QTest::addColumn<MeasQuality>("quality");
    QTest::newRow("none") << u"none"_s << Good;
    QTest::newRow("ok") << u"OK"_s << Good;
    QTest::newRow("off") << u"off"_s << Good;
    QTest::newRow("0") << u"0"_s << Good;
    QTest::newRow("present") << u"present"_s << Bad;
    QTest::newRow("alarm") << u" Alarm "_s << Bad;
    QTest::newRow("1") << u"1"_s << Bad;
    QTest::newRow("was present") << u"was present"_s << Warning;
    QTest::newRow("history") << u"history"_s << Warning;
    QTest::newRow("2") << u"2"_s << Warning;
    QTest::newRow("empty") << QString() << NotMeasured;
    QTest::newRow("unknown") << u"n/a"_s << NotMeasured;
    QTest::newRow("64 KiB") << QString(65536, u'1') << NotMeasured;
}

void LedPanelTest::stateTextsStandForQualities() {
    QFETCH(QString, state);
    QTEST(qualityFromState(state), "quality");
}

void LedPanelTest::lampsDifferInShapeNotOnlyInColour() {
    QList<QImage> shapes;
    for (const MeasQuality quality : {NotMeasured, Good, Warning, Bad}) {
        // One bit a pixel: the colours are gone, the shape is left.
        QImage outline(20, 20, QImage::Format_Mono);
        outline.fill(0);
        const QImage picture = lampPicture(quality);
        for (int y = 0; y < 20; ++y) {
            for (int x = 0; x < 20; ++x)
                outline.setPixel(x, y, picture.pixelColor(x, y) != Qt::black);
        }
        QVERIFY(!shapes.contains(outline));
        shapes.append(outline);
    }
}

void LedPanelTest::onlyTheChangedLampIsPaintedAgain() {
    WatchedPanel panel(nullptr, false);
    panel.resize(76, 300);
    for (const auto &name : {u"LOS"_s, u"AIS"_s, u"LOF"_s})
        panel.add(name, Good);
    panel.invokeRebuild();
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    QTRY_VERIFY(!panel.painted.isEmpty());
    QCoreApplication::processEvents();
    panel.painted = QRegion();

    States states{{u"AIS"_s, u"present"_s}};
    panel.update(states);
    QTRY_VERIFY(!panel.painted.isEmpty());
    // Its row, the second.
    QCOMPARE(panel.painted, QRegion(0, 6 + 32, 76, 32));
}

void LedPanelTest::unchangedStatesPaintNothing() {
    WatchedPanel panel(nullptr, false);
    panel.resize(76, 300);
    panel.add(u"LOS"_s, Good);
    panel.invokeRebuild();
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    QTRY_VERIFY(!panel.painted.isEmpty());
    QCoreApplication::processEvents();
    panel.painted = QRegion();
    States states{{u"LOS"_s, u"none"_s}, {u"nobody"_s, u"present"_s}};
    panel.update(states);
    QCoreApplication::processEvents();
    QVERIFY(panel.painted.isEmpty());
}

void LedPanelTest::allLampsOfANameFollow() {
    LedPanel panel(nullptr, false);
    panel.resize(76, 300);
    panel.add(u"LOS"_s, Good);
    panel.add(u"LOS"_s, Good);
    panel.invokeRebuild();
    States states{{u"LOS"_s, u"present"_s}};
    panel.update(states);
    const QImage picture = panel.grab().toImage();
    QCOMPARE(picture.pixelColor(12, 6 + 16), lampColor(Bad));
    QCOMPARE(picture.pixelColor(12, 6 + 32 + 16), lampColor(Bad));
}

void LedPanelTest::rebuildWaitsUntilItIsAskedFor() {
    LedPanel panel(nullptr, false);
    panel.resize(76, 300);
    const QImage empty = panel.grab().toImage();
    panel.add(u"LOS"_s, Good);
    panel.invokeRebuild();
    QVERIFY(panel.grab().toImage() != empty);
    panel.clear(true);
    QCOMPARE(panel.grab().toImage(), empty);
}

void LedPanelTest::pressAndReleaseInsideIsAClick() {
    LedPanel panel(nullptr, false);
    panel.resize(76, 300);
    const QSignalSpy clicks(&panel, &LedPanel::clicked);
    QTest::mouseClick(&panel, Qt::LeftButton);
    QCOMPARE(clicks.count(), 1);
}

void LedPanelTest::releaseOutsideIsNone() {
    LedPanel panel(nullptr, false);
    panel.resize(76, 300);
    const QSignalSpy clicks(&panel, &LedPanel::clicked);
    QTest::mousePress(&panel, Qt::LeftButton);
    QTest::mouseRelease(&panel, Qt::LeftButton, {}, QPoint(400, 10));
    QCOMPARE(clicks.count(), 0);
}

void LedPanelTest::keysClickToo() {
    LedPanel panel(nullptr, false);
    const QSignalSpy clicks(&panel, &LedPanel::clicked);
    QTest::keyClick(&panel, Qt::Key_Space);
    QTest::keyClick(&panel, Qt::Key_Enter);
    QCOMPARE(clicks.count(), 2);
}

void LedPanelTest::ringTellsThatThePanelIsHeld() {
    LedPanel panel(nullptr, false);
    panel.resize(76, 300);
    const auto edge = [&panel] { return panel.grab().toImage().pixelColor(1, 150); };
    const QColor ring = panel.palette().color(QPalette::Highlight);
    QTest::mousePress(&panel, Qt::LeftButton);
    QVERIFY(edge() != ring);
    QTest::mouseRelease(&panel, Qt::LeftButton);
    addLamps(panel, 4);
    QVERIFY(edge() != ring);
    QTest::mousePress(&panel, Qt::LeftButton);
    QCOMPARE(edge(), ring);
    QTest::mouseRelease(&panel, Qt::LeftButton);
    QVERIFY(edge() != ring);
}

void LedPanelTest::manyLampsCanBeScrolled() {
    LedPanel panel(nullptr, false);
    panel.resize(76, 200);
    for (int i = 0; i < 50; ++i)
        panel.add(u"LED%1"_s.arg(i), i < 25 ? Good : Bad);
    panel.invokeRebuild();
    const QPoint lowestLamp(12, 6 + 10 * 17 - 9);
    QCOMPARE(panel.grab().toImage().pixelColor(lowestLamp), lampColor(Good));
    QTest::mousePress(&panel, Qt::LeftButton, {}, QPoint(40, 190));
    QTest::mouseMove(&panel, QPoint(40, -2000));
    QTest::mouseRelease(&panel, Qt::LeftButton, {}, QPoint(40, 190));
    QCOMPARE(panel.grab().toImage().pixelColor(12, 200 - 6 - 9), lampColor(Bad));
}

void LedPanelTest::arrowKeysScroll() {
    LedPanel panel(nullptr, false);
    panel.resize(76, 200);
    addLamps(panel, 24);
    const QImage atTop = panel.grab().toImage();
    QTest::keyClick(&panel, Qt::Key_Down);
    QVERIFY(panel.grab().toImage() != atTop);
    QTest::keyClick(&panel, Qt::Key_Up);
    QCOMPARE(panel.grab().toImage(), atTop);
    QTest::keyClick(&panel, Qt::Key_Up);
    QCOMPARE(panel.grab().toImage(), atTop);
}

void LedPanelTest::dragIsNoClickAndAPressAfterItIs() {
    LedPanel panel(nullptr, false);
    panel.resize(76, 200);
    addLamps(panel, 24);
    const QSignalSpy clicks(&panel, &LedPanel::clicked);
    QTest::mousePress(&panel, Qt::LeftButton, {}, QPoint(40, 150));
    QTest::mouseMove(&panel, QPoint(40, 60));
    QTest::mouseRelease(&panel, Qt::LeftButton, {}, QPoint(40, 60));
    QCOMPARE(clicks.count(), 0);
    QTest::mouseClick(&panel, Qt::LeftButton, {}, QPoint(40, 60));
    QCOMPARE(clicks.count(), 1);
}

void LedPanelTest::markShowsThatThereIsMore_data() {
    QTest::addColumn<int>("lamps");
    QTest::addColumn<int>("height");
    QTest::addColumn<bool>("isMarked");
    QTest::newRow("4") << 4 << 330 << false;
    QTest::newRow("12") << 12 << 330 << false;
    QTest::newRow("24 on the low screen") << 24 << 330 << true;
    QTest::newRow("24 on the high screen") << 24 << 425 << false;
}

void LedPanelTest::markShowsThatThereIsMore() {
    QFETCH(int, lamps);
    QFETCH(int, height);
    QFETCH(bool, isMarked);
    LedPanel panel(nullptr, false);
    panel.resize(72, height);
    addLamps(panel, lamps);
    const QColor mark = panel.grab().toImage().pixelColor(72 - 3, 20);
    QCOMPARE(mark != panel.palette().color(QPalette::Base), isMarked);
}

void LedPanelTest::lettersAreAsLargeAsRowsAndNamesAllow_data() {
    QTest::addColumn<int>("lamps");
    QTest::addColumn<int>("height");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("leastHeight");
    QTest::addColumn<int>("mostHeight");
    // Capitals are seven tenths of the size of the letters: 22, 20, 18 or 14 pixels.
    QTest::newRow("4 on the low screen") << 4 << 310 << u"LIH"_s << 15 << 17;
    QTest::newRow("4 on the high screen") << 4 << 430 << u"LIH"_s << 15 << 17;
    QTest::newRow("12 on the low screen") << 12 << 310 << u"LIH"_s << 13 << 15;
    QTest::newRow("12 on the high screen") << 12 << 430 << u"LIH"_s << 15 << 17;
    QTest::newRow("24 on the low screen") << 24 << 310 << u"LIH"_s << 10 << 11;
    QTest::newRow("24 on the high screen") << 24 << 430 << u"LIH"_s << 10 << 11;
    QTest::newRow("long name") << 4 << 310 << u"PATTEN"_s << 10 << 11;
}

void LedPanelTest::lettersAreAsLargeAsRowsAndNamesAllow() {
    QFETCH(int, lamps);
    QFETCH(int, height);
    QFETCH(QString, name);
    QFETCH(int, leastHeight);
    QFETCH(int, mostHeight);
    LedPanel panel(nullptr, false);
    panel.setMargins(1, 0, 2, 4);
    panel.resize(72, height);
    for (int i = 0; i < lamps; ++i)
        panel.add(name, Good);
    panel.invokeRebuild();
    const int capitals = capitalHeight(panel);
    const QString failure = u"%1 pixels"_s.arg(capitals);
    QVERIFY2(capitals >= leastHeight, qPrintable(failure));
    QVERIFY2(capitals <= mostHeight, qPrintable(failure));
    // The panel may become lower later.
    panel.resize(72, lamps * 17 + 16);
    QVERIFY(capitalHeight(panel) <= 11);
}

void LedPanelTest::anyWidthIsDrawn() {
    LedPanel panel(nullptr, false);
    for (const QString &name : {QString(), u"LOS"_s, u"SIGNAL"_s})
        panel.add(name, MeasQuality(1));
    panel.invokeRebuild();
    for (int width = 0; width < 80; ++width) {
        panel.resize(width, 200);
        QCOMPARE(panel.grab().width(), width);
    }
}

void LedPanelTest::hugeInputIsDrawnInNoTime() {
    LedPanel panel(nullptr, false);
    panel.resize(76, 300);
    States states;
    const QString longName(65536, u'W');
    for (int i = 0; i < 10'000; ++i) {
        panel.add(i % 2 ? longName : QString::number(i), Good);
        states.append({QString::number(i), longName});
    }
    panel.invokeRebuild();
    panel.update(states);
    QVERIFY(!panel.grab().isNull());
    panel.resize(1, 1);
    QVERIFY(!panel.grab().isNull());
}

QTEST_MAIN(LedPanelTest)
#include "tst_ledpanel.moc"
