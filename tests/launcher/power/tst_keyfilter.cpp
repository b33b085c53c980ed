// SPDX-License-Identifier: GPL-3.0-or-later
#include "power/keyfilter.h"

#include "launcherfixture.h"

#include <statuspanel.h>
#include <warningwindow.h>

#include <QDir>
#include <QLabel>
#include <QStackedWidget>
#include <QTextEdit>
#include <QTimer>

#include <memory>
#include <qpa/qwindowsysteminterface.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

class KeyFilterTest : public QObject {
    Q_OBJECT

private slots:
    void init();

    void keysAreConsumedAsTabled_data();
    void keysAreConsumedAsTabled();
    void pressOfF1IsKeptFromWindowsItsReleaseIsNot();
    void homeLeadsHome();
    void brightnessAlternates();
    void heldBrightnessKeyWritesOnce();
    void brightnessFileThatCannotBeWrittenChangesNothing_data();
    void brightnessFileThatCannotBeWrittenChangesNothing();
    void informationKeyTogglesThePanelOnceAPress();
    void powerQuestionIsAnswered_data();
    void powerQuestionIsAnswered();
    void powerKeyDuringItsQuestionIsIgnored();
    void powerKeyClosesAnOpenPopup();
    void messageUnderTheQuestionGetsTheKeysBack();
    void burstOfKeysIsWorkedOff();
    void brightnessFileWithoutRightsChangesNothing();
    void refusedQuestionIsAskedAgain();

private:
    static QString brightnessFile() {
        return qEnvironmentVariable("ZR_SYSROOT") + "/sys/devices/platform/pmmcu.0/brightness"_L1;
    }
    static void makeBrightnessFile() {
        QVERIFY(QDir().mkpath(QFileInfo(brightnessFile()).path()));
        QVERIFY(QFile(brightnessFile()).open(QIODevice::WriteOnly));
    }
    static QByteArray read(const QString &name) {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static QByteArray commands() { return read(qEnvironmentVariable("HOME") + "/sudo.log"_L1); }
    bool press(int key) { return filter->filter(0, key, 0, true, false); }
    bool release(int key) { return filter->filter(0, key, 0, false, false); }
    void click(int key) {
        press(key);
        release(key);
    }
    WarningWindow *question() const { return window->findChild<WarningWindow *>(); }
    /// Presses the power key and does `work` while the question is open.
    void askWhile(const std::function<void()> &work) {
        QTimer::singleShot(0, this, work);
        QVERIFY(press(Qt::Key_Pause));
    }
    void answer(const QString &text) const {
        for (QPushButton *const button : question()->findChildren<QPushButton *>()) {
            if (button->text() == text)
                button->click();
        }
    }

    TestConfig config;
    std::unique_ptr<LauncherWindow> window;
    std::unique_ptr<KeyFilter> filter;
};

void KeyFilterTest::init() {
    QTest::failOnWarning(QRegularExpression(u"^QObject"_s));
    QDir(qEnvironmentVariable("ZR_SYSROOT") + "/sys"_L1).removeRecursively();
    QFile::remove(qEnvironmentVariable("HOME") + "/sudo.log"_L1);
    config = TestConfig();
    configurePlugins(config, {u"alpha"_s});
    filter.reset();
    window.reset();
    window = std::make_unique<LauncherWindow>();
    window->resize(800, 480);
    window->show();
    filter = std::make_unique<KeyFilter>(window.get());
}

void KeyFilterTest::keysAreConsumedAsTabled_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("onPress");
    QTest::addColumn<bool>("onRelease");
    QTest::newRow("Home") << 0x01000010 << true << true;
    QTest::newRow("F1") << 0x01000030 << true << false;
    QTest::newRow("F2") << 0x01000031 << true << false;
    QTest::newRow("F3") << 0x01000032 << true << true;
    QTest::newRow("F4") << 0x01000033 << true << true;
    QTest::newRow("F5") << 0x01000034 << false << false;
    QTest::newRow("Escape") << int(Qt::Key_Escape) << false << false;
    QTest::newRow("letter") << int(Qt::Key_A) << false << false;
    QTest::newRow("no key") << 0 << false << false;
}

void KeyFilterTest::keysAreConsumedAsTabled() {
    QFETCH(int, key);
    QTEST(press(key), "onPress");
    QTEST(release(key), "onRelease");
    QVERIFY(release(Qt::Key_Pause));
}

void KeyFilterTest::pressOfF1IsKeptFromWindowsItsReleaseIsNot() {
    class KeyWindow : public QWidget {
    public:
        QStringList seen;

    protected:
        void keyPressEvent(QKeyEvent *) override { seen.append(u"press"_s); }
        void keyReleaseEvent(QKeyEvent *) override { seen.append(u"release"_s); }
    } keyWindow;
    keyWindow.show();
    keyWindow.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&keyWindow));
    QWSServer::addKeyboardFilter(filter.get());
    // As the platform delivers them.
    for (const int key : {Qt::Key_F1, Qt::Key_F2, Qt::Key_F5, Qt::Key_Home}) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
            QWindowSystemInterface::handleKeyEvent(nullptr, type, key, Qt::NoModifier);
    }
    QTRY_COMPARE(keyWindow.seen.size(), 4);
    QWSServer::removeKeyboardFilter();
    QCOMPARE(keyWindow.seen, QStringList({u"release"_s, u"release"_s, u"press"_s, u"release"_s}));
}

void KeyFilterTest::homeLeadsHome() {
    clickIcon(*window, "icon alpha");
    QVERIFY(window->getStackedWidget()->currentIndex() > 0);
    click(Qt::Key_Home);
    QCOMPARE(window->getStackedWidget()->currentIndex(), 0);
}

void KeyFilterTest::brightnessAlternates() {
    makeBrightnessFile();
    for (const QByteArray &expected : QByteArrayList{"255", "1", "255"}) {
        click(Qt::Key_F3);
        QCOMPARE(read(brightnessFile()), expected);
    }
}

void KeyFilterTest::heldBrightnessKeyWritesOnce() {
    makeBrightnessFile();
    press(Qt::Key_F3);
    press(Qt::Key_F3);
    QCOMPARE(read(brightnessFile()), QByteArray("255"));
    release(Qt::Key_F3);
    press(Qt::Key_F3);
    QCOMPARE(read(brightnessFile()), QByteArray("1"));
}

void KeyFilterTest::brightnessFileThatCannotBeWrittenChangesNothing_data() {
    QTest::addColumn<QString>("kind");
    QTest::newRow("missing") << u"missing"_s;
    QTest::newRow("directory") << u"directory"_s;
    QTest::newRow("pipe that nobody reads") << u"pipe"_s;
}

void KeyFilterTest::brightnessFileThatCannotBeWrittenChangesNothing() {
    QFETCH(QString, kind);
    QVERIFY(QDir().mkpath(QFileInfo(brightnessFile()).path()));
    if (kind == "directory"_L1)
        QVERIFY(QDir().mkpath(brightnessFile()));
    else if (kind == "pipe"_L1)
        QCOMPARE(::mkfifo(brightnessFile().toLocal8Bit().constData(), 0600), 0);
    click(Qt::Key_F3);
    // It comes back: the first press that can be written is the bright one.
    QDir(brightnessFile()).removeRecursively();
    QFile::remove(brightnessFile());
    makeBrightnessFile();
    click(Qt::Key_F3);
    QCOMPARE(read(brightnessFile()), QByteArray("255"));
    QVERIFY(QFile::remove(brightnessFile()));
    click(Qt::Key_F3);
    makeBrightnessFile();
    click(Qt::Key_F3);
    QCOMPARE(read(brightnessFile()), QByteArray("1"));
}

void KeyFilterTest::informationKeyTogglesThePanelOnceAPress() {
    StatusPanel *panel = nullptr;
    for (StatusPanel *const candidate : window->findChildren<StatusPanel *>()) {
        if (candidate->minimumWidth() == 400)
            panel = candidate;
    }
    QVERIFY(panel);
    new QLabel(u"Information"_s, panel);
    press(Qt::Key_F4);
    QVERIFY(panel->isVisible());
    press(Qt::Key_F4);
    QVERIFY(panel->isVisible());
    release(Qt::Key_F4);
    press(Qt::Key_F4);
    QVERIFY(!panel->isVisible());
}

void KeyFilterTest::powerQuestionIsAnswered_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("Yes") << u"Yes"_s << QByteArray("/sbin/shutdown -h now\n");
    QTest::newRow("No") << u"No"_s << QByteArray();
}

void KeyFilterTest::powerQuestionIsAnswered() {
    QFETCH(QString, button);
    QString text;
    askWhile([&] {
        text = question()->findChild<QTextEdit *>()->toPlainText();
        answer(button);
    });
    QCOMPARE(text, u"Do you really mean to power off device?"_s);
    QTEST(commands(), "command");
    QVERIFY(!question());
}

void KeyFilterTest::powerKeyDuringItsQuestionIsIgnored() {
    qsizetype questions = 0;
    askWhile([&] {
        QVERIFY(press(Qt::Key_Pause));
        QVERIFY(release(Qt::Key_Pause));
        QVERIFY(press(Qt::Key_Pause));
        questions = window->findChildren<WarningWindow *>().size();
        answer(u"No"_s);
    });
    QCOMPARE(questions, 1);
    QVERIFY(commands().isEmpty());
}

void KeyFilterTest::powerKeyClosesAnOpenPopup() {
    StatusPanel panel(window.get(), 200);
    panel.invoke(QRect(0, 0, 10, 10));
    QVERIFY(panel.isVisible());
    askWhile([&] { answer(u"No"_s); });
    QVERIFY(!panel.isVisible());
}

void KeyFilterTest::messageUnderTheQuestionGetsTheKeysBack() {
    auto *const message = new WarningWindow(window.get());
    message->show(u"Line is down"_s, QString());
    QVERIFY(QTest::qWaitForWindowActive(message));
    askWhile([&] {
        for (WarningWindow *const dialog : window->findChildren<WarningWindow *>()) {
            if (dialog != message)
                dialog->reject();
        }
    });
    QTRY_COMPARE(QApplication::activeWindow(), message);
    QTest::keyClick(message->windowHandle(), Qt::Key_Return);
    QTRY_VERIFY(!message->isVisible());
}

void KeyFilterTest::burstOfKeysIsWorkedOff() {
    makeBrightnessFile();
    for (int i = 0; i < 99; ++i)
        click(Qt::Key_F3);
    QCOMPARE(read(brightnessFile()), QByteArray("255"));
    click(Qt::Key_F3);
    QCOMPARE(read(brightnessFile()), QByteArray("1"));
    for (int i = 0; i < 100; ++i)
        click(Qt::Key_Home);
    qsizetype questions = 0;
    askWhile([&] {
        for (int i = 0; i < 100; ++i)
            click(Qt::Key_Pause);
        questions = window->findChildren<WarningWindow *>().size();
        answer(u"No"_s);
    });
    QCOMPARE(questions, 1);
}

void KeyFilterTest::brightnessFileWithoutRightsChangesNothing() {
    makeBrightnessFile();
    QVERIFY(QFile::setPermissions(brightnessFile(), QFile::ReadOwner | QFile::ReadOther));
    // Root may write everything, so it is somebody else meanwhile.
    const bool isRoot = ::geteuid() == 0;
    if (isRoot)
        QCOMPARE(::seteuid(65534), 0);
    click(Qt::Key_F3);
    if (isRoot)
        QCOMPARE(::seteuid(0), 0);
    QCOMPARE(read(brightnessFile()), QByteArray());
    QVERIFY(QFile::setPermissions(brightnessFile(), QFile::ReadOwner | QFile::WriteOwner));
    click(Qt::Key_F3);
    QCOMPARE(read(brightnessFile()), QByteArray("255"));
}

void KeyFilterTest::refusedQuestionIsAskedAgain() {
    int asked = 0;
    for (int i = 0; i < 3; ++i)
        askWhile([&] {
            asked += question() != nullptr;
            answer(u"No"_s);
        });
    QCOMPARE(asked, 3);
    QVERIFY(commands().isEmpty());
}

QTEST_MAIN(KeyFilterTest)
#include "tst_keyfilter.moc"
