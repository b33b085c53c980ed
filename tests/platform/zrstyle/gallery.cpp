// SPDX-License-Identifier: GPL-3.0-or-later
#include "gallery.h"

#include <checkbutton.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTabBar>
#include <QTableWidget>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename Widget>
QWidget *sized(Widget *widget, int width = 0, int height = 0) {
    widget->ensurePolished();
    widget->resize(width ? width : widget->sizeHint().width(), height ? height : widget->sizeHint().height());
    return widget;
}

void pressButton(QWidget *widget) {
    qobject_cast<QAbstractButton *>(widget)->setDown(true);
}

void holdAt(QWidget *widget, const QPoint &position) {
    QTest::mousePress(widget, Qt::LeftButton, {}, position);
}

void holdInTheMiddle(QWidget *widget) {
    holdAt(widget, widget->rect().center());
}

QWidget *toolButton(bool isRaised) {
    auto *const button = new QToolButton;
    button->setText(u"Zoom"_s);
    button->setAutoRaise(isRaised);
    return sized(button, 100);
}

template <typename Button>
QWidget *markedButton(const QString &text, bool isChecked) {
    auto *const button = new Button(text);
    button->setCheckable(true);
    button->setChecked(isChecked);
    return sized(button, 128);
}

QWidget *comboBox() {
    auto *const box = new QComboBox;
    box->addItems({u"E1"_s, u"E3"_s});
    return sized(box, 128);
}

QWidget *spinBox() {
    auto *const box = new QSpinBox;
    box->setValue(42);
    return sized(box, 176);
}

QWidget *slider() {
    auto *const bar = new QSlider(Qt::Horizontal);
    bar->setValue(50);
    return sized(bar, 160);
}

QWidget *progressBar(int highest) {
    auto *const bar = new QProgressBar;
    bar->setRange(0, highest);
    bar->setValue(48);
    return sized(bar, 160);
}

QWidget *tabs() {
    auto *const bar = new QTabBar;
    bar->addTab(u"Line"_s);
    bar->addTab(u"Test"_s);
    return sized(bar);
}

QWidget *plainText() {
    auto *const text = new QPlainTextEdit(u"Two lines\nof text"_s);
    return sized(text, 140, 72);
}

QWidget *list() {
    auto *const view = new QListWidget;
    view->addItems({u"First"_s, u"Second"_s, u"Third"_s});
    view->setCurrentRow(0);
    return sized(view, 160, 116);
}

QWidget *table() {
    auto *const view = new QTableWidget(2, 2);
    view->setHorizontalHeaderLabels({u"Alarm"_s, u"Count"_s});
    view->verticalHeader()->hide();
    view->horizontalHeader()->setDefaultSectionSize(84);
    view->setItem(0, 0, new QTableWidgetItem(u"LOF"_s));
    view->setItem(0, 1, new QTableWidgetItem(u"3"_s));
    view->setItem(1, 0, new QTableWidgetItem(u"AIS"_s));
    view->selectRow(0);
    return sized(view, 180, 160);
}

QWidget *tree() {
    auto *const view = new QTreeWidget;
    view->setHeaderHidden(true);
    auto *const top = new QTreeWidgetItem(view, {u"Card"_s});
    new QTreeWidgetItem(top, {u"Port"_s});
    top->setExpanded(true);
    return sized(view, 160, 116);
}

QWidget *groupBox() {
    auto *const box = new QGroupBox(u"Limits"_s);
    box->setCheckable(true);
    auto *const layout = new QVBoxLayout(box);
    layout->addWidget(new QCheckBox(u"Jitter"_s));
    return sized(box, 160);
}

QWidget *menuButton() {
    auto *const button = new QPushButton(u"Save"_s);
    button->setMenu(new QMenu(button));
    return sized(button, 128);
}

QWidget *message() {
    auto *const window =
        new QMessageBox(QMessageBox::Warning, {}, u"Stop the test?"_s, QMessageBox::Yes | QMessageBox::No);
    return sized(window);
}

QWidget *menu() {
    auto *const list = new QMenu;
    list->addAction(u"Copy"_s);
    QAction *const loop = list->addAction(u"Loop"_s);
    loop->setCheckable(true);
    loop->setChecked(true);
    list->addSeparator();
    list->addMenu(u"More"_s);
    list->setActiveAction(list->actions().constFirst());
    return sized(list);
}

} // namespace

const QList<GalleryControl> &galleryControls() {
    static const QList<GalleryControl> controls{
        {u"push-button"_s, [] { return sized(new QPushButton(u"Start"_s), 120); }, pressButton},
        {u"tool-button"_s, [] { return toolButton(false); }, pressButton},
        {u"raised-tool-button"_s, [] { return toolButton(true); }, pressButton},
        {u"check-button"_s, [] { return markedButton<CheckButton>(u"PCM"_s, false); }, pressButton},
        {u"check-button-on"_s, [] { return markedButton<CheckButton>(u"PCM"_s, true); }, pressButton},
        {u"check-box"_s, [] { return markedButton<QCheckBox>(u"Loop"_s, false); }, pressButton},
        {u"check-box-on"_s, [] { return markedButton<QCheckBox>(u"Loop"_s, true); }, pressButton},
        {u"radio-button"_s, [] { return markedButton<QRadioButton>(u"E1"_s, false); }, pressButton},
        {u"radio-button-on"_s, [] { return markedButton<QRadioButton>(u"E1"_s, true); }, pressButton},
        {u"line-edit"_s, [] { return sized(new QLineEdit(u"Site 7"_s), 128); }, {}},
        {u"combo-box"_s, comboBox, {}},
        {u"spin-box"_s, spinBox,
         [](QWidget *box) {
             holdAt(box, {box->width() - 26, 26});
         }},
        {u"slider"_s, slider, holdInTheMiddle},
        {u"progress-bar"_s, [] { return progressBar(100); }, {}},
        {u"busy-bar"_s, [] { return progressBar(0); }, {}},
        {u"tabs"_s, tabs,
         [](QWidget *bar) {
             holdAt(bar, {bar->width() - 30, 30});
         }},
        {u"text"_s, plainText, {}},
        {u"group-box"_s, groupBox, {}},
        {u"list"_s, list, {}},
        {u"table"_s, table, {}},
        {u"tree"_s, tree, {}},
        {u"menu"_s, menu, {}},
        {u"menu-button"_s, menuButton, {}},
        {u"message"_s, message, {}},
    };
    return controls;
}
