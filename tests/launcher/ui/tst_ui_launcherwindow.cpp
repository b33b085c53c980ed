// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ui_launcherwindow.h"

#include <ledpanel.h>
#include <popuplabel.h>
#include <pressinglabel.h>

#include <QStackedWidget>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

class UiLauncherWindowTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { ui.setupUi(&window); }

    void windowIsNamedSizedAndLettered();
    void everyPartCarriesItsFieldsName();
    void leftColumnStandsBesideTheStack();
    void ledPanelTakesTheFreeHeight();
    void labelsKeepTheirPictures();
    void textsAreSet();
    void windowKeepsAnEarlierName();

private:
    QWidget window;
    Ui_LauncherWindow ui;
};

void UiLauncherWindowTest::windowIsNamedSizedAndLettered() {
    QCOMPARE(window.objectName(), u"LauncherWindow"_s);
    QCOMPARE(window.size(), QSize(800, 536));
    QCOMPARE(window.font().family(), u"Liberation Sans"_s);
    QCOMPARE(window.font().pointSize(), 16);
    QCOMPARE(window.font().weight(), QFont::Bold);
}

void UiLauncherWindowTest::everyPartCarriesItsFieldsName() {
    QCOMPARE(ui.mainLayout->objectName(), u"mainLayout"_s);
    QCOMPARE(ui.mainHLayout->objectName(), u"mainHLayout"_s);
    QCOMPARE(ui.verticalLayout_2->objectName(), u"verticalLayout_2"_s);
    QCOMPARE(ui.ledPanel->objectName(), u"ledPanel"_s);
    QCOMPARE(ui.labelReport->objectName(), u"labelReport"_s);
    QCOMPARE(ui.labelSettings->objectName(), u"labelSettings"_s);
    QCOMPARE(ui.labelInfo->objectName(), u"labelInfo"_s);
    QCOMPARE(ui.stackedWidget->objectName(), u"stackedWidget"_s);
    QCOMPARE(ui.pageLauncher->objectName(), u"pageLauncher"_s);
    QCOMPARE(ui.pageLauncherLayout->objectName(), u"pageLauncherLayout"_s);
}

void UiLauncherWindowTest::leftColumnStandsBesideTheStack() {
    QCOMPARE(window.layout(), ui.mainLayout);
    QCOMPARE(ui.mainLayout->spacing(), 0);
    QCOMPARE(ui.mainLayout->contentsMargins(), QMargins());
    QCOMPARE(ui.mainLayout->itemAt(0)->layout(), ui.mainHLayout);
    QCOMPARE(ui.mainHLayout->itemAt(0)->layout(), ui.verticalLayout_2);
    QCOMPARE(ui.mainHLayout->itemAt(1)->widget(), ui.stackedWidget);
    QCOMPARE(ui.mainHLayout->stretch(0), 2);
    QCOMPARE(ui.mainHLayout->stretch(1), 19);
    QCOMPARE(ui.stackedWidget->count(), 1);
    QCOMPARE(ui.stackedWidget->widget(0), ui.pageLauncher);
    QCOMPARE(ui.pageLauncherLayout->contentsMargins(), QMargins());
}

void UiLauncherWindowTest::ledPanelTakesTheFreeHeight() {
    QCOMPARE(ui.verticalLayout_2->itemAt(0)->widget(), ui.ledPanel);
    QCOMPARE(ui.verticalLayout_2->stretch(0), 1);
    QCOMPARE(ui.ledPanel->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(ui.ledPanel->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    const QMargins margins = ui.verticalLayout_2->contentsMargins();
    QCOMPARE(margins.left(), 2);
    QCOMPARE(margins.top(), 3);
    QCOMPARE(margins.right(), 2);
    QCOMPARE(ui.ledPanel->contentsMargins(), QMargins(0, 0, 0, 3));
    QCOMPARE(ui.verticalLayout_2->spacing(), 2);
}

void UiLauncherWindowTest::labelsKeepTheirPictures() {
    QVERIFY(!ui.labelReport->pixmap().isNull());
    QVERIFY(!ui.labelSettings->pixmap().isNull());
    QVERIFY(!ui.labelInfo->pixmap().isNull());
    QCOMPARE(ui.labelReport->alignment(), Qt::AlignCenter);
    QCOMPARE(ui.labelSettings->alignment(), Qt::AlignHCenter | Qt::AlignTop);
    QCOMPARE(ui.labelSettings->margin(), 2);
    QCOMPARE(ui.labelInfo->alignment(), Qt::AlignHCenter | Qt::AlignTop);
    QCOMPARE(ui.labelInfo->margin(), 2);
}

void UiLauncherWindowTest::textsAreSet() {
    QCOMPARE(window.windowTitle(), u"Dialog"_s);
    QCOMPARE(ui.labelReport->whatsThis(), u"Battery level indication."_s);
    QCOMPARE(ui.labelSettings->whatsThis(), u"Loads settings"_s);
    QCOMPARE(ui.labelInfo->whatsThis(), u"Information about settings and measurements"_s);
}

void UiLauncherWindowTest::windowKeepsAnEarlierName() {
    QWidget named;
    named.setObjectName(u"mine"_s);
    Ui_LauncherWindow().setupUi(&named);
    QCOMPARE(named.objectName(), u"mine"_s);
}

QTEST_MAIN(UiLauncherWindowTest)
#include "tst_ui_launcherwindow.moc"
