// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/apppopups.h"

#include "ui/vboxpopup.h"

#include <genericplugin.h>

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

class TitledPlugin : public GenericPlugin {
public:
    explicit TitledPlugin(const QString &title) { setTitle(title); }
};

} // namespace

class AppPopupsTest : public QObject {
    Q_OBJECT

private slots:
    void init();

    void nothingIsStoredForAnEmptyList();
    void sameKeyBringsTheSamePopup();
    void nullIsAKeyLikeAnyOther();
    void buttonsBearTheTitlesInOrder();
    void popupIsSizedFromItsButtons();
    void buttonShowsItsPluginOnce();
    void buttonOfAnUnloadedPluginDoesNothing();
    void longTitleIsNotCut();
    void manyPluginsStayInsideTheWindow();
    void popupsBelongToTheParent();

private:
    static QList<QPushButton *> buttons(const QWidget *popup) { return popup->findChildren<QPushButton *>(); }

    std::unique_ptr<QWidget> window;
    QWidget *caller = nullptr;
    std::unique_ptr<AppPopups> popups;
    int firstKey = 0;
    int secondKey = 0;
};

void AppPopupsTest::init() {
    window = std::make_unique<QWidget>();
    window->setGeometry(0, 0, 800, 480);
    QFont font(u"Liberation Sans"_s, 16);
    font.setBold(true);
    window->setFont(font);
    caller = new QWidget(window.get());
    caller->setGeometry(2, 380, 74, 46);
    window->show();
    popups = std::make_unique<AppPopups>(window.get(), caller);
}

void AppPopupsTest::nothingIsStoredForAnEmptyList() {
    QVERIFY(!popups->popup(&firstKey, {}));
    QVERIFY(!popups->popup(&firstKey, {}));
    TitledPlugin plugin(u"Line"_s);
    QVERIFY(popups->popup(&firstKey, {&plugin}));
}

void AppPopupsTest::sameKeyBringsTheSamePopup() {
    TitledPlugin line(u"Line"_s);
    TitledPlugin port(u"Port"_s);
    VBoxPopup *const first = popups->popup(&firstKey, {&line});
    QCOMPARE(popups->popup(&firstKey, {&line}), first);
    QCOMPARE(popups->popup(&firstKey, {&line, &port}), first);
    QCOMPARE(popups->popup(&firstKey, {}), first);
    QCOMPARE(buttons(first).size(), 1);
    QVERIFY(popups->popup(&secondKey, {&line}) != first);
}

void AppPopupsTest::nullIsAKeyLikeAnyOther() {
    TitledPlugin plugin(u"Line"_s);
    QVERIFY(!popups->popup(nullptr, {}));
    VBoxPopup *const popup = popups->popup(nullptr, {&plugin});
    QVERIFY(popup);
    QCOMPARE(popups->popup(nullptr, {}), popup);
    QVERIFY(!popups->popup(&firstKey, {}));
}

void AppPopupsTest::buttonsBearTheTitlesInOrder() {
    TitledPlugin line(u"Line"_s);
    TitledPlugin port(u"Port"_s);
    const QList<QPushButton *> made = buttons(popups->popup(&firstKey, {&port, &line}));
    QCOMPARE(made.size(), 2);
    QCOMPARE(made.at(0)->text(), u"Port"_s);
    QCOMPARE(made.at(1)->text(), u"Line"_s);
    QCOMPARE(made.at(0)->minimumSize(), QSize(140, 52));
    QCOMPARE(made.at(0)->sizePolicy().horizontalPolicy(), QSizePolicy::MinimumExpanding);
    QCOMPARE(made.at(0)->sizePolicy().verticalPolicy(), QSizePolicy::MinimumExpanding);
}

void AppPopupsTest::popupIsSizedFromItsButtons() {
    TitledPlugin plugin(u"A title that is wider than the least"_s);
    VBoxPopup *const popup = popups->popup(&firstKey, {&plugin, &plugin, &plugin});
    QCOMPARE(popup->maximumHeight(), 183);
    QCOMPARE(popup->maximumWidth(), buttons(popup).first()->sizeHint().width() * 3 / 2);
}

void AppPopupsTest::buttonShowsItsPluginOnce() {
    TitledPlugin line(u"Line"_s);
    TitledPlugin port(u"Port"_s);
    QSignalSpy lineShown(&line, SIGNAL(setCurrentWidget(QWidget *)));
    QSignalSpy portShown(&port, SIGNAL(setCurrentWidget(QWidget *)));
    VBoxPopup *const popup = popups->popup(&firstKey, {&line, &port});
    popup->show();
    QTest::mouseClick(buttons(popup).at(1), Qt::LeftButton);
    QCOMPARE(lineShown.size(), 0);
    QCOMPARE(portShown.size(), 1);
    QVERIFY(popup->isHidden());
}

void AppPopupsTest::buttonOfAnUnloadedPluginDoesNothing() {
    auto line = std::make_unique<TitledPlugin>(u"Line"_s);
    TitledPlugin port(u"Port"_s);
    QSignalSpy portShown(&port, SIGNAL(setCurrentWidget(QWidget *)));
    VBoxPopup *const popup = popups->popup(&firstKey, {line.get(), &port});
    popup->show();
    line.reset();
    QTest::mouseClick(buttons(popup).at(0), Qt::LeftButton);
    QVERIFY(popup->isHidden());
    QCOMPARE(popups->popup(&firstKey, {&port}), popup);
    popup->show();
    QTest::mouseClick(buttons(popup).at(1), Qt::LeftButton);
    QCOMPARE(portShown.size(), 1);
}

void AppPopupsTest::longTitleIsNotCut() {
    TitledPlugin plugin(u"Настройки протокола сигнализации"_s);
    VBoxPopup *const popup = popups->popup(&firstKey, {&plugin, &plugin});
    popup->show();
    const QPushButton *const button = buttons(popup).first();
    QCOMPARE(button->font().pointSize(), 16);
    QVERIFY(button->width() >= button->sizeHint().width());
    QVERIFY(popup->rect().contains(button->geometry()));
}

void AppPopupsTest::manyPluginsStayInsideTheWindow() {
    TitledPlugin plugin(u"Line"_s);
    VBoxPopup *const popup = popups->popup(&firstKey, QList<GenericPlugin *>(12, &plugin));
    popup->show();
    QCOMPARE(popup->maximumHeight(), 12 * 61);
    QVERIFY(window->geometry().contains(popup->geometry()));
    QVERIFY(buttons(popup).first()->height() >= 52);
}

void AppPopupsTest::popupsBelongToTheParent() {
    TitledPlugin plugin(u"Line"_s);
    const QPointer<VBoxPopup> popup = popups->popup(&firstKey, {&plugin});
    popups.reset();
    QVERIFY(popup);
    QCOMPARE(popup->parentWidget(), window.get());
    window.reset();
    QVERIFY(!popup);
}

QTEST_MAIN(AppPopupsTest)
#include "tst_apppopups.moc"
