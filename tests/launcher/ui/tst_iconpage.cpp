// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/icongrid.h"
#include "ui/iconpage.h"

#include <icontile.h>

#include <QGridLayout>
#include <QImage>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class IconPageTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { window.reset(); }

    void fiveRowsShareThePage_data();
    void fiveRowsShareThePage();
    void tallIconsSideBySideSpanEqualRows();
    void moreRowsKeepTheirHeightAndScroll_data();
    void moreRowsKeepTheirHeightAndScroll();
    void dragOnATileScrollsAndPressesNothing();
    void focusAndKeysReachTheLastIcon();
    void pageStopsScrollingWhenIconsGo();
    void emptyPageSaysSo();

private:
    QList<IconTile *> fill(int count);
    QScrollBar *bar() const { return page->findChild<QScrollBar *>(); }
    bool isWhole(const QWidget *icon) const { return page->rect().contains(icon->geometry()); }

    std::unique_ptr<QWidget> window;
    IconPage *page = nullptr;
    QGridLayout *grid = nullptr;
};

void IconPageTest::init() {
    window = std::make_unique<QWidget>();
    window->resize(722, 354);
    page = new IconPage(window.get());
    grid = qobject_cast<QGridLayout *>(page->layout());
    IconGrid::initGrid(grid, page);
    page->setEmptyText(u"Nothing here"_s, u"Do something"_s);
    page->resize(722, 354);
}

QList<IconTile *> IconPageTest::fill(int count) {
    QList<IconTile *> icons;
    for (int i = 0; i < count; ++i) {
        icons.append(new IconTile(QIcon(), u"Icon %1"_s.arg(i)));
        IconGrid::place(grid, icons.last(), i / 2, i % 2);
    }
    window->show();
    QCoreApplication::processEvents();
    return icons;
}

void IconPageTest::fiveRowsShareThePage_data() {
    QTest::addColumn<int>("count");
    for (const int count : {1, 3, 10})
        QTest::addRow("%d", count) << count;
}

void IconPageTest::fiveRowsShareThePage() {
    QFETCH(int, count);
    for (const IconTile *const icon : fill(count)) {
        QVERIFY(isWhole(icon));
        QVERIFY2(qAbs(icon->height() - 62) <= 1, qPrintable(QString::number(icon->height())));
    }
    QVERIFY(!bar());
}

void IconPageTest::tallIconsSideBySideSpanEqualRows() {
    auto *const two = new IconTile(QIcon(), u"Two"_s);
    auto *const three = new IconTile(QIcon(), u"Three"_s);
    two->setProperty("rows", 2);
    three->setProperty("rows", 3);
    IconGrid::place(grid, two, 0, 0);
    IconGrid::place(grid, three, 0, 1);
    window->show();
    // The grid leaves out the space beside a row in which nothing begins.
    const int spacing = grid->verticalSpacing();
    QTRY_VERIFY(qAbs(two->height() - (2 * 62 + 8)) <= spacing);
    QVERIFY(qAbs(three->height() - (3 * 62 + 2 * 8)) <= spacing);
}

void IconPageTest::moreRowsKeepTheirHeightAndScroll_data() {
    QTest::addColumn<int>("count");
    for (const int count : {11, 14, 20})
        QTest::addRow("%d", count) << count;
}

void IconPageTest::moreRowsKeepTheirHeightAndScroll() {
    QFETCH(int, count);
    const QList<IconTile *> icons = fill(count);
    for (const IconTile *const icon : icons)
        QVERIFY2(qAbs(icon->height() - 62) <= 1, qPrintable(QString::number(icon->height())));
    QVERIFY(!isWhole(icons.last()));
    QVERIFY(bar()->isVisible());
    bar()->setValue(bar()->maximum());
    QVERIFY(isWhole(icons.last()));
    QVERIFY(!isWhole(icons.first()));
    for (const IconTile *const icon : icons)
        QVERIFY(icon->geometry().right() < bar()->x());
}

void IconPageTest::dragOnATileScrollsAndPressesNothing() {
    const QList<IconTile *> icons = fill(14);
    IconTile *const icon = icons.at(4);
    const QSignalSpy clicks(icon, &IconTile::clicked);
    QTest::mousePress(icon, Qt::LeftButton);
    QVERIFY(icon->isDown());
    QTest::mouseMove(icon, QPoint(50, -400));
    QVERIFY(!icon->isDown());
    QTest::mouseRelease(icon, Qt::LeftButton);
    QCOMPARE(clicks.count(), 0);
    QVERIFY(isWhole(icons.last()));
    QTest::mouseClick(icon, Qt::LeftButton);
    QCOMPARE(clicks.count(), 1);
}

void IconPageTest::focusAndKeysReachTheLastIcon() {
    const QList<IconTile *> icons = fill(14);
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    icons.last()->setFocus();
    QVERIFY(isWhole(icons.last()));
    QTest::keyClick(icons.last(), Qt::Key_PageUp);
    QVERIFY(isWhole(icons.first()));
    QTest::keyClick(icons.last(), Qt::Key_PageDown);
    QVERIFY(isWhole(icons.last()));
}

void IconPageTest::pageStopsScrollingWhenIconsGo() {
    QList<IconTile *> icons = fill(14);
    bar()->setValue(bar()->maximum());
    while (icons.size() > 10)
        delete icons.takeLast();
    QTRY_VERIFY(!bar()->isVisible());
    QVERIFY(isWhole(icons.first()));
    QVERIFY(isWhole(icons.last()));
}

void IconPageTest::emptyPageSaysSo() {
    window->show();
    const QImage empty = page->grab().toImage();
    page->setEmptyText(QString(), QString());
    const QImage blank = page->grab().toImage();
    QVERIFY(empty != blank);
    page->setEmptyText(u"Nothing here"_s, u"Do something"_s);
    const QList<IconTile *> icons = fill(1);
    icons.first()->hide();
    QCOMPARE(page->grab().toImage(), blank);
    delete icons.first();
    QCoreApplication::processEvents();
    QCOMPARE(page->grab().toImage(), empty);
}

QTEST_MAIN(IconPageTest)
#include "tst_iconpage.moc"
