// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgetgallery.h"

#include "checkbutton.h"
#include "controlbottompanel.h"
#include "dialogframe.h"
#include "icontile.h"
#include "ledpanel.h"
#include "messageview.h"
#include "plainline.h"
#include "pressinglabel.h"
#include "roundslider.h"
#include "statuslabel.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

QWidget *sized(QWidget *widget, const QSize &size) {
    widget->ensurePolished();
    widget->resize(size);
    return widget;
}

QWidget *sized(QWidget *widget) {
    widget->ensurePolished();
    return sized(widget, widget->sizeHint());
}

/// Lines of one colour on nothing, as the pictures of plug-ins are.
QPixmap linePicture(const QColor &color, int size) {
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(QPen(color, 3));
    painter.drawRect(4, 4, size - 9, size - 9);
    painter.drawLine(4, size / 2, size - 5, size / 2);
    return picture;
}

QWidget *lamps(const QStringList &names, const QSize &size) {
    auto *const panel = new LedPanel(nullptr, false);
    for (qsizetype i = 0; i < names.size(); ++i)
        panel->add(names[i], MeasQuality(i % 4));
    panel->invokeRebuild();
    return sized(panel, size);
}

QWidget *fourLamps() {
    return lamps({u"LOS"_s, u"AIS"_s, u"LOF"_s, u"RDI"_s}, {76, 112});
}

QWidget *twelveLamps() {
    return lamps({u"LOS"_s, u"AIS"_s, u"LOF"_s, u"RDI"_s, u"LOM"_s, u"CRC"_s, u"FAS"_s, u"BIT"_s, u"LSS"_s,
                  u"SLIP"_s, u"CODE"_s, u"REBE"_s},
                 {76, 216});
}

QWidget *narrowLamps() {
    return lamps({u"SIGNAL"_s, u"PATTERN"_s, u"Ошибка"_s, u"CODE"_s}, {60, 112});
}

IconTile *tile(const QString &title) {
    auto *const button = new IconTile(linePicture(QColor(0x1f3a5f), 40), title);
    sized(button, {220, 56});
    return button;
}

QWidget *switchTile() {
    IconTile *const button = tile(u"Аварии"_s);
    button->setCheckable(true);
    return button;
}

QWidget *slider(int position) {
    auto *const bar = new RoundSlider;
    bar->setPosition(position);
    return sized(bar);
}

QWidget *pressingLabel() {
    auto *const picture = new PressingLabel(nullptr, false);
    picture->setPixmap(linePicture(Qt::white, 32));
    picture->setAlignment(Qt::AlignCenter);
    return sized(picture, {72, 46});
}

QWidget *statusTable() {
    auto *const table = new StatusLabel;
    const QColor color = QApplication::palette().color(QPalette::WindowText);
    table->setCell(0, 0, Qt::AlignLeft, u"Заряд"_s, color, 0, true);
    table->setCell(1, 0, Qt::AlignRight, u"87 %"_s, color, 0, false);
    table->setCell(0, 1, Qt::AlignLeft, u"Напряжение"_s, color, 0, true);
    table->setCell(1, 1, Qt::AlignRight, u"7,4 В"_s, color, 0, false);
    return sized(table, {220, 76});
}

QWidget *dialog() {
    auto *const frame = new DialogFrame;
    auto *const layout = new QVBoxLayout(frame);
    layout->addWidget(new QLabel(u"Остановить измерение?"_s), 0, Qt::AlignCenter);
    return sized(frame, {280, 88});
}

QWidget *longMessage() {
    auto *const view = new MessageView;
    view->ensurePolished();
    view->setMessage(u"Не удалось записать отчёт на внешний накопитель"_s,
                     u"Накопитель извлечён раньше, чем была закончена запись. Вставьте его снова, проверьте, "
                     "что на нём есть свободное место, и повторите сохранение отчёта."_s);
    view->fit(320, 150);
    return view;
}

QWidget *bottomPanel() {
    auto *const panel = new ControlBottomPanel;
    auto *const chosen = new CheckButton(u"PCM"_s);
    chosen->setChecked(true);
    panel->addWidget(chosen, ControlBottomPanel::Left, 0, {});
    panel->addWidget(new CheckButton(u"Сеть"_s), ControlBottomPanel::Left, 0, {});
    panel->addWidget(new CheckButton(u"Отчёты"_s), ControlBottomPanel::RightEnd, 0, {});
    return sized(panel, {480, panel->sizeHint().height()});
}

void hold(QWidget *widget) {
    QTest::mousePress(widget, Qt::LeftButton);
}

void press(QWidget *widget) {
    qobject_cast<QAbstractButton *>(widget)->setDown(true);
}

void check(QWidget *widget) {
    qobject_cast<QAbstractButton *>(widget)->setChecked(true);
}

void focus(QWidget *widget) {
    widget->setFocus();
}

} // namespace

const QList<ShownWidget> &widgetGallery() {
    const auto alarms = []() -> QWidget * { return tile(u"Аварии"_s); };
    const auto longName = []() -> QWidget * { return tile(u"Анализатор ошибок цифрового потока"_s); };
    const auto checkButton = [] { return sized(new CheckButton(u"PCM"_s)); };
    const auto horizontal = [] { return sized(new PlainLine(PlainLine::Horizontal, 2), {80, 2}); };
    const auto vertical = [] { return sized(new PlainLine(PlainLine::Vertical, 2), {2, 48}); };
    const QString page = u"GenericWindow"_s;
    const QString column = u"Chrome"_s;
    static const QList<ShownWidget> widgets{
        {u"lamps"_s, fourLamps, {}, column},
        {u"lamps-twelve"_s, twelveLamps, {}, column},
        {u"lamps-narrow"_s, narrowLamps, {}, column},
        {u"tile"_s, alarms, {}, page},
        {u"tile-pressed"_s, alarms, press, page},
        {u"tile-focused"_s, alarms, focus, page},
        {u"tile-switch"_s, switchTile, {}, page},
        {u"tile-switch-pressed"_s, switchTile, press, page},
        {u"tile-switch-checked"_s, switchTile, check, page},
        {u"tile-long-name"_s, longName, {}, page},
        {u"check-button"_s, checkButton, {}, page},
        {u"check-button-checked"_s, checkButton, check, page},
        {u"check-button-focused"_s, checkButton, focus, page},
        {u"slider-at-start"_s, [] { return slider(0); }, {}, page},
        {u"slider-in-the-middle"_s, [] { return slider(50); }, {}, page},
        {u"slider-at-end"_s, [] { return slider(100); }, {}, page},
        {u"picture"_s, pressingLabel, {}, column},
        {u"picture-pressed"_s, pressingLabel, hold, column},
        {u"picture-focused"_s, pressingLabel, focus, column},
        {u"status-table"_s, statusTable, {}, page},
        {u"line-horizontal"_s, horizontal, {}, page},
        {u"line-vertical"_s, vertical, {}, page},
        {u"dialog"_s, dialog, {}, page},
        {u"message"_s, longMessage, {}, page},
        {u"bottom-panel"_s, bottomPanel, {}, page},
    };
    return widgets;
}
