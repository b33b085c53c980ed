// SPDX-License-Identifier: GPL-3.0-or-later
#include "qwsserver.h"

#ifdef ON_X_SERVER
#include "xserver.h"
#endif

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QShortcut>
#include <QTest>

#include <memory>
#include <qpa/qwindowsysteminterface.h>

using namespace Qt::Literals::StringLiterals;

namespace {

#ifdef ON_X_SERVER
XServer *xServer = nullptr;
#endif

class Recorder : public QWSServer::KeyboardFilter {
public:
    explicit Recorder(const QList<int> &consumedKeys = {}) : consumed(consumedKeys) {}

    bool filter(int, int keycode, int, bool isPress, bool) override {
        seen.append((isPress ? u'+' : u'-') + QString::number(keycode, 16));
        return consumed.contains(keycode);
    }

    QList<int> consumed;
    QStringList seen;
};

/// Counts what reaches a window as a key.
class KeyCounter : public QWidget {
public:
    using QWidget::QWidget;
    int keys = 0;

protected:
    bool event(QEvent *event) override {
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease ||
            event->type() == QEvent::ShortcutOverride)
            ++keys;
        return QWidget::event(event);
    }
};

const QStringList f3Once{u"+1000032"_s, u"-1000032"_s};

} // namespace

class KeyboardFilterTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void keyIsSeenOnceAndPassedOn();
    void consumedKeyReachesNothingElse();
    void keyIsSeenUnderAPopup();
    void keyIsSeenUnderAModalDialog();
    void keyIsSeenWithoutAWindow();
    void lastFilterIsAskedFirst();
    void removedFilterIsNotAsked();
    void burstIsSeenWhole();
    void heldKeyIsSeenWithItsRepetitions();
    void valuesAreThoseOfTheKey();

private:
    static void press(int key, const QString &xName, int times = 1) {
#ifdef ON_X_SERVER
        Q_UNUSED(key)
        QVERIFY(xServer->key(QStringList(times, xName)));
#else
        Q_UNUSED(xName)
        for (int i = 0; i < times; ++i) {
            for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
                QWindowSystemInterface::handleKeyEvent(nullptr, type, key, Qt::NoModifier);
        }
#endif
    }
    static void pressF3(int times = 1) {
        press(Qt::Key_F3, u"F3"_s, times);
    }

    std::unique_ptr<KeyCounter> window;
    int shortcuts = 0;
    QList<Recorder *> installed;
    void install(Recorder &recorder) {
        QWSServer::addKeyboardFilter(&recorder);
        installed.append(&recorder);
    }
};

void KeyboardFilterTest::init() {
    window = std::make_unique<KeyCounter>();
    window->resize(400, 300);
    shortcuts = 0;
    auto *const shortcut = new QShortcut(QKeySequence(Qt::Key_F3), window.get());
    connect(shortcut, &QShortcut::activated, this, [this] { ++shortcuts; });
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
}

void KeyboardFilterTest::cleanup() {
    for (; !installed.isEmpty(); installed.removeLast())
        QWSServer::removeKeyboardFilter();
    window.reset();
}

void KeyboardFilterTest::keyIsSeenOnceAndPassedOn() {
    Recorder recorder;
    install(recorder);
    pressF3();
    QTRY_COMPARE(recorder.seen, f3Once);
    QTRY_COMPARE(shortcuts, 1);
    press(Qt::Key_A, u"a"_s);
    QTRY_COMPARE(recorder.seen.mid(2), QStringList({u"+41"_s, u"-41"_s}));
    QTRY_VERIFY(window->keys >= 2);
}

void KeyboardFilterTest::consumedKeyReachesNothingElse() {
    Recorder recorder({Qt::Key_F3});
    install(recorder);
    pressF3();
    QTRY_COMPARE(recorder.seen, f3Once);
    press(Qt::Key_F5, u"F5"_s);
    // Keys keep their order: when this one is there, the other one has come to nothing.
    QTRY_COMPARE(recorder.seen.size(), 4);
    QTRY_VERIFY(window->keys > 0);
    const int keysOfF5 = window->keys;
    pressF3();
    press(Qt::Key_F5, u"F5"_s);
    QTRY_COMPARE(recorder.seen.size(), 8);
    QTRY_COMPARE(window->keys, 2 * keysOfF5);
    QCOMPARE(shortcuts, 0);
}

void KeyboardFilterTest::keyIsSeenUnderAPopup() {
    Recorder recorder({Qt::Key_F3});
    install(recorder);
    QMenu menu(window.get());
    menu.addAction(u"one"_s);
    menu.popup(window->mapToGlobal(QPoint(20, 20)));
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    pressF3();
    QTRY_COMPARE(recorder.seen, f3Once);
    QCOMPARE(shortcuts, 0);
    QVERIFY(menu.isVisible());
}

void KeyboardFilterTest::keyIsSeenUnderAModalDialog() {
    Recorder recorder({Qt::Key_F3, Qt::Key_Escape});
    install(recorder);
    QDialog dialog(window.get());
    dialog.open();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    pressF3();
    QTRY_COMPARE(recorder.seen, f3Once);
    press(Qt::Key_Escape, u"Escape"_s);
    QTRY_COMPARE(recorder.seen.size(), 4);
    QVERIFY(dialog.isVisible());
}

void KeyboardFilterTest::keyIsSeenWithoutAWindow() {
    Recorder recorder;
    install(recorder);
    window.reset();
    // An X server gives keys to windows only; the framebuffer's platform has no such thought.
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
        QWindowSystemInterface::handleKeyEvent(nullptr, type, Qt::Key_F3, Qt::NoModifier);
    QTRY_COMPARE(recorder.seen, f3Once);
}

void KeyboardFilterTest::lastFilterIsAskedFirst() {
    Recorder first;
    Recorder last({Qt::Key_F3});
    install(first);
    install(last);
    pressF3();
    QTRY_COMPARE(last.seen, f3Once);
    press(Qt::Key_F5, u"F5"_s);
    QTRY_COMPARE(last.seen.size(), 4);
    QTRY_COMPARE(first.seen, QStringList({u"+1000034"_s, u"-1000034"_s}));
}

void KeyboardFilterTest::removedFilterIsNotAsked() {
    Recorder recorder({Qt::Key_F3});
    QWSServer::addKeyboardFilter(&recorder);
    QWSServer::removeKeyboardFilter();
    QWSServer::removeKeyboardFilter();
    pressF3();
    QTRY_COMPARE(shortcuts, 1);
    QVERIFY(recorder.seen.isEmpty());
}

void KeyboardFilterTest::burstIsSeenWhole() {
    Recorder recorder({Qt::Key_F3});
    install(recorder);
    pressF3(100);
    QTRY_COMPARE(recorder.seen.size(), 200);
    QCOMPARE(shortcuts, 0);
}

void KeyboardFilterTest::heldKeyIsSeenWithItsRepetitions() {
    Recorder recorder({Qt::Key_F3});
    install(recorder);
#ifdef ON_X_SERVER
    QVERIFY(xServer->xdotool({u"keydown"_s, u"F3"_s}));
    // An X server repeats a held key as releases and presses.
    QTRY_VERIFY_WITH_TIMEOUT(recorder.seen.size() >= 4, 30'000);
    QVERIFY(xServer->xdotool({u"keyup"_s, u"F3"_s}));
    QTRY_VERIFY(recorder.seen.size() % 2 == 0 && recorder.seen.last() == "-1000032"_L1);
#else
    QWindowSystemInterface::handleKeyEvent(nullptr, QEvent::KeyPress, Qt::Key_F3, Qt::NoModifier);
    for (int i = 0; i < 3; ++i)
        QWindowSystemInterface::handleKeyEvent(nullptr, QEvent::KeyPress, Qt::Key_F3, Qt::NoModifier,
                                               QString(), true);
    QWindowSystemInterface::handleKeyEvent(nullptr, QEvent::KeyRelease, Qt::Key_F3, Qt::NoModifier);
    QTRY_COMPARE(recorder.seen.size(), 5);
    QCOMPARE(recorder.seen.count(u"+1000032"_s), 4);
#endif
    QCOMPARE(shortcuts, 0);
}

void KeyboardFilterTest::valuesAreThoseOfTheKey() {
    class ValueRecorder : public QWSServer::KeyboardFilter {
    public:
        bool filter(int unicode, int keycode, int modifiers, bool isPress, bool autoRepeat) override {
            if (isPress)
                values = {unicode, keycode, modifiers, autoRepeat};
            return true;
        }
        QList<int> values;
    } recorder;
    QWSServer::addKeyboardFilter(&recorder);
    QWindowSystemInterface::handleKeyEvent(nullptr, QEvent::KeyPress, Qt::Key_E, Qt::ControlModifier, u"é"_s,
                                           true);
    QTRY_COMPARE(recorder.values, QList<int>({0xe9, Qt::Key_E, int(Qt::ControlModifier), 1}));
    QWSServer::removeKeyboardFilter();
}

int main(int argc, char *argv[]) {
#ifdef ON_X_SERVER
    XServer server;
    xServer = &server;
    qputenv("DISPLAY", server.display().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "xcb");
#endif
    QApplication application(argc, argv);
    KeyboardFilterTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_keyboardfilter.moc"
