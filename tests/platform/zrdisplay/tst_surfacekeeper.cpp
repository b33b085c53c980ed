// SPDX-License-Identifier: GPL-3.0-or-later
#include "surfacekeeper.h"

#include <QDialog>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWindow>

/// Whether a window has its place on the screen is whether its QWindow has a handle of the platform.
class SurfaceKeeperTest : public QObject {
    Q_OBJECT

private slots:
    void dialogKeepsItsSurfaceHoweverItEnds_data();
    void dialogKeepsItsSurfaceHoweverItEnds();
    void popUpThatIsClosedKeepsItsSurface();
    void refusedCloseIsTold();
    void dialogThatIsDeletedOnCloseIsDeleted();
    void mainWindowIsLeftToItself();

private:
    SurfaceKeeper keeper;
};

namespace {

using End = void (*)(QDialog &);

class StubbornDialog : public QDialog {
    void reject() override {}
};

} // namespace

Q_DECLARE_METATYPE(End)

void SurfaceKeeperTest::dialogKeepsItsSurfaceHoweverItEnds_data() {
    QTest::addColumn<End>("end");
    QTest::addColumn<int>("result");
    QTest::newRow("accepted") << End([](QDialog &dialog) { dialog.accept(); }) << int(QDialog::Accepted);
    QTest::newRow("rejected") << End([](QDialog &dialog) { dialog.reject(); }) << int(QDialog::Rejected);
    QTest::newRow("done") << End([](QDialog &dialog) { dialog.done(7); }) << 7;
    QTest::newRow("closed") << End([](QDialog &dialog) { dialog.close(); }) << int(QDialog::Rejected);
    QTest::newRow("hidden") << End([](QDialog &dialog) { dialog.hide(); }) << int(QDialog::Rejected);
}

void SurfaceKeeperTest::dialogKeepsItsSurfaceHoweverItEnds() {
    QFETCH(End, end);
    QFETCH(int, result);
    QDialog dialog;
    for (int i = 0; i < 2; ++i) {
        QTimer::singleShot(0, &dialog, [&] { end(dialog); });
        QCOMPARE(dialog.exec(), result);
        QVERIFY(!dialog.isVisible());
        QVERIFY(dialog.windowHandle()->handle());
    }
}

void SurfaceKeeperTest::popUpThatIsClosedKeepsItsSurface() {
    QWidget window;
    window.show();
    QWidget popup(&window, Qt::Popup);
    popup.show();
    QVERIFY(popup.close());
    QVERIFY(!popup.isVisible());
    QVERIFY(popup.windowHandle()->handle());
}

void SurfaceKeeperTest::refusedCloseIsTold() {
    StubbornDialog dialog;
    dialog.show();
    QVERIFY(!dialog.close());
    QVERIFY(dialog.isVisible());
}

void SurfaceKeeperTest::dialogThatIsDeletedOnCloseIsDeleted() {
    auto *const dialog = new QDialog;
    const QSignalSpy deleted(dialog, &QObject::destroyed);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
    dialog->close();
    QTRY_COMPARE(deleted.size(), 1);
}

void SurfaceKeeperTest::mainWindowIsLeftToItself() {
    QWidget window;
    window.show();
    QVERIFY(window.close());
    QVERIFY(!window.windowHandle()->handle());
}

QTEST_MAIN(SurfaceKeeperTest)
#include "tst_surfacekeeper.moc"
