// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ui_launcherwindow.h"

#include "power/batteryindicator.h"

#include <ledpanel.h>
#include <pngpicture.h>
#include <popuplabel.h>
#include <pressinglabel.h>

#include <QCoreApplication>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leftColumnStretch = 2;
constexpr int stackStretch = 19;

QFont windowFont() {
    QFont font(u"Liberation Sans"_s, 16);
    font.setBold(true);
    return font;
}

template <typename Child>
Child *named(Child *child, const QString &name) {
    child->setObjectName(name);
    return child;
}

QString translated(const char *text) {
    return QCoreApplication::translate("LauncherWindow", text);
}

} // namespace

void Ui_LauncherWindow::setupUi(QWidget *window) {
    if (window->objectName().isEmpty())
        window->setObjectName(u"LauncherWindow"_s);
    window->resize(800, 536);
    window->setFont(windowFont());

    setupLayouts(window);
    setupLeftColumn(window);
    mainHLayout->addLayout(verticalLayout_2);
    setupStack(window);
    mainHLayout->addWidget(stackedWidget);
    mainHLayout->setStretch(0, leftColumnStretch);
    mainHLayout->setStretch(1, stackStretch);
    mainLayout->addLayout(mainHLayout);

    retranslateUi(window);
    stackedWidget->setCurrentIndex(0);
    QMetaObject::connectSlotsByName(window);
}

void Ui_LauncherWindow::setupLayouts(QWidget *window) {
    mainLayout = named(new QVBoxLayout(window), u"mainLayout"_s);
    mainLayout->setSpacing(0);
    // The screen does not grow with what a plug-in wants to show on it.
    mainLayout->setSizeConstraint(QLayout::SetNoConstraint);
    mainLayout->setContentsMargins(0, 0, 0, 0);
    mainHLayout = named(new QHBoxLayout, u"mainHLayout"_s);
    mainHLayout->setSpacing(0);
    verticalLayout_2 = named(new QVBoxLayout, u"verticalLayout_2"_s);
    verticalLayout_2->setSpacing(2);
    verticalLayout_2->setContentsMargins(2, 3, 2, -1);
}

void Ui_LauncherWindow::setupLeftColumn(QWidget *window) {
    ledPanel = named(new LedPanel(window, false), u"ledPanel"_s);
    QSizePolicy ledPolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);
    ledPolicy.setHeightForWidth(ledPanel->sizePolicy().hasHeightForWidth());
    ledPanel->setSizePolicy(ledPolicy);
    ledPanel->setAutoFillBackground(true);
    ledPanel->setRounded(true);
    ledPanel->setContentsMargins(0, 0, 0, 3);
    verticalLayout_2->addWidget(ledPanel);

    labelBattery = named(new BatteryIndicator(window), u"labelBattery"_s);
    labelBattery->setEnabled(true);
    labelBattery->setAlignment(Qt::AlignCenter);
    labelBattery->setMargin(0);
    labelBattery->setIndent(0);
    verticalLayout_2->addWidget(labelBattery);

    labelReport = named(new PopupLabel(window, nullptr), u"labelReport"_s);
    labelReport->setEnabled(true);
    labelReport->setPixmap(pngPicture(u":/main/resources/saverpt.png"_s));
    labelReport->setAlignment(Qt::AlignCenter);
    labelReport->setMargin(0);
    labelReport->setIndent(0);
    verticalLayout_2->addWidget(labelReport);

    labelSettings = named(new PressingLabel(window, false), u"labelSettings"_s);
    labelSettings->setEnabled(true);
    labelSettings->setMinimumSize(0, 0);
    labelSettings->setText(QString());
    labelSettings->setPixmap(pngPicture(u":/main/resources/settings.png"_s));
    labelSettings->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    labelSettings->setMargin(2);
    labelSettings->setIndent(0);
    verticalLayout_2->addWidget(labelSettings);

    labelInfo = named(new PressingLabel(window, false), u"labelInfo"_s);
    labelInfo->setMinimumSize(0, 0);
    labelInfo->setPixmap(pngPicture(u":/main/resources/status.png"_s));
    labelInfo->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    labelInfo->setMargin(2);
    labelInfo->setIndent(0);
    verticalLayout_2->addWidget(labelInfo);

    verticalLayout_2->setStretch(0, 1);
}

void Ui_LauncherWindow::setupStack(QWidget *window) {
    stackedWidget = named(new QStackedWidget(window), u"stackedWidget"_s);
    stackedWidget->setAutoFillBackground(true);
    stackedWidget->setMinimumSize(1, 1);
    pageLauncher = named(new QWidget, u"pageLauncher"_s);
    pageLauncherLayout = named(new QVBoxLayout(pageLauncher), u"pageLauncherLayout"_s);
    pageLauncherLayout->setSpacing(0);
    pageLauncherLayout->setContentsMargins(0, 0, 0, 0);
    stackedWidget->addWidget(pageLauncher);
}

void Ui_LauncherWindow::retranslateUi(QWidget *window) {
    window->setWindowTitle(translated(QT_TRANSLATE_NOOP("LauncherWindow", "Dialog")));
    labelBattery->setWhatsThis(translated(QT_TRANSLATE_NOOP("LauncherWindow", "Battery level indication.")));
    labelBattery->setText(QString());
    // The report label explains itself with the battery's text; the catalogues know it that way.
    labelReport->setWhatsThis(translated(QT_TRANSLATE_NOOP("LauncherWindow", "Battery level indication.")));
    labelReport->setText(QString());
    labelSettings->setWhatsThis(translated(QT_TRANSLATE_NOOP("LauncherWindow", "Loads settings")));
    labelInfo->setWhatsThis(
        translated(QT_TRANSLATE_NOOP("LauncherWindow", "Information about settings and measurements")));
}
