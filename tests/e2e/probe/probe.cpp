// SPDX-License-Identifier: GPL-3.0-or-later
#include "probe.h"

#include "clippedtexts.h"
#include "holdings.h"
#include "textrecorder.h"
#include "ui/launcherwindow.h"

#include <checkbutton.h>
#include <icontile.h>
#include <ledpanel.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QTextEdit>

#include <qpa/qwindowsysteminterface.h>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename Button>
QStringList textsOf() {
    QStringList texts;
    for (const Button *const button : LauncherWindow::instance()->findChildren<Button *>()) {
        if (button->isVisible())
            texts.append(button->text());
    }
    return texts;
}

/// Not in another dialog that is a child of this one.
template <typename Widget>
const Widget *firstIn(const QWidget &dialog) {
    for (const Widget *const widget : dialog.findChildren<Widget *>()) {
        if (widget->window() == &dialog)
            return widget;
    }
    return nullptr;
}

QList<CheckButton *> selectors() {
    return LauncherWindow::instance()->findChild<QWidget *>(u"pageLauncher"_s)->findChildren<CheckButton *>();
}

QWidget *header() {
    for (QWidget *const child : LauncherWindow::instance()->findChildren<QWidget *>()) {
        if (child->inherits("LauncherHeader"))
            return child;
    }
    return nullptr;
}

void pressAt(QWidget *widget, QPointF position) {
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(type, position, widget->mapToGlobal(position), Qt::LeftButton, held,
                          Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
    }
}

} // namespace

Probe::Probe() {
    QCoreApplication::instance()->installEventFilter(this);
}

bool Probe::eventFilter(QObject *watched, QEvent *event) {
    // Before the window has chosen a widget, which may hand the key on to others.
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (isKey && watched->isWindowType()) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        heardKeys.append(QString::number(event->type() == QEvent::KeyPress ? key : -key));
    }
    return QObject::eventFilter(watched, event);
}

QStringList Probe::keysHeard() {
    return std::exchange(heardKeys, {});
}

QString Probe::ground() const {
    LauncherWindow *const window = LauncherWindow::instance();
    const QRect corner(window->getStackedWidget()->mapTo(window, QPoint()), QSize(1, 1));
    return window->grab(corner).toImage().pixelColor(0, 0).name();
}

QStringList Probe::windowSize() const {
    const QSize size = LauncherWindow::instance()->size();
    return {QString::number(size.width()), QString::number(size.height())};
}

QString Probe::caption() const {
    return static_cast<QLabel *>(header())->text();
}

QString Probe::backButtonText() const {
    const auto *const button = header()->findChild<QPushButton *>();
    return button->isVisible() ? button->text() : QString();
}

QString Probe::shownPage() const {
    const QWidget *const page = LauncherWindow::instance()->getStackedWidget()->currentWidget();
    return page->objectName().isEmpty() ? QString::fromLatin1(page->metaObject()->className())
                                        : page->objectName();
}

QStringList Probe::selectorTexts() const {
    return textsOf<CheckButton>();
}

int Probe::selectorCount() const {
    return static_cast<int>(selectors().size());
}

int Probe::checkedSelector() const {
    const QList<CheckButton *> buttons = selectors();
    const auto checked = std::find_if(buttons.cbegin(), buttons.cend(),
                                      [](const CheckButton *button) { return button->isChecked(); });
    return checked == buttons.cend() ? -1 : static_cast<int>(checked - buttons.cbegin());
}

bool Probe::pressSelector(int index) const {
    CheckButton *const button = selectors().value(index);
    if (!button || !button->isVisible())
        return false;
    pressAt(button, QRectF(button->rect()).center());
    return true;
}

QStringList Probe::iconTexts() const {
    return textsOf<IconTile>();
}

QStringList Probe::pageTexts() const {
    const QWidget *const page = LauncherWindow::instance()->getStackedWidget()->currentWidget();
    QStringList texts;
    for (const QLabel *const label : page->findChildren<QLabel *>())
        texts.append(label->text());
    for (const QPlainTextEdit *const view : page->findChildren<QPlainTextEdit *>())
        texts.append(view->toPlainText());
    return texts;
}

QStringList Probe::leds() const {
    const auto *const panel = LauncherWindow::instance()->findChild<LedPanel *>();
    QStringList leds;
    for (const QString &name : panel->names())
        leds.append(name + u':' + QString::number(panel->quality(name)));
    return leds;
}

QString Probe::shownPopup() const {
    const QWidget *const popup = QApplication::activePopupWidget();
    return popup ? QString::fromLatin1(popup->metaObject()->className()) : QString();
}

void Probe::closePopup() const {
    if (QWidget *const popup = QApplication::activePopupWidget())
        popup->close();
}

bool Probe::isActive() const {
    const QWidget *const modal = QApplication::activeModalWidget();
    return modal ? modal->isActiveWindow() : QApplication::activeWindow() != nullptr;
}

bool Probe::hasPicture(const QString &name) const {
    const auto *const label = LauncherWindow::instance()->findChild<QLabel *>(name);
    return label && !label->pixmap().isNull();
}

QString Probe::message() const {
    const QWidget *const dialog = QApplication::activeModalWidget();
    if (!dialog)
        return {};
    if (const auto *const text = firstIn<QTextEdit>(*dialog))
        return text->toPlainText();
    const auto *const text = firstIn<QLabel>(*dialog);
    return text ? text->text() : QString();
}

int Probe::progress() const {
    const QWidget *const dialog = QApplication::activeModalWidget();
    const auto *const bar = dialog ? dialog->findChild<QProgressBar *>() : nullptr;
    return bar && bar->isVisible() ? bar->value() : -1;
}

QWidget *Probe::named(const QString &nameOrText) const {
    for (QWidget *const widget : QApplication::allWidgets()) {
        const auto *const button = qobject_cast<QAbstractButton *>(widget);
        if (widget->isVisible() &&
            (widget->objectName() == nameOrText || (button && button->text() == nameOrText)))
            return widget;
    }
    return nullptr;
}

bool Probe::isVisible(const QString &name) const {
    return named(name);
}

bool Probe::press(const QString &nameOrText) const {
    QWidget *const widget = named(nameOrText);
    if (!widget)
        return false;
    pressAt(widget, QRectF(widget->rect()).center());
    return true;
}

bool Probe::pressWithKey(const QString &nameOrText) const {
    QWidget *const widget = named(nameOrText);
    if (!widget)
        return false;
    widget->setFocus(Qt::TabFocusReason);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
    }
    return true;
}

void Probe::pressDeviceKey(int key) const {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
        QWindowSystemInterface::handleKeyEvent(nullptr, type, key, Qt::NoModifier);
}

bool Probe::pressRow(int row) const {
    for (const QAbstractItemView *const view :
         LauncherWindow::instance()->findChildren<QAbstractItemView *>()) {
        if (view->isVisible() && view->model() && row < view->model()->rowCount()) {
            pressAt(view->viewport(), view->visualRect(view->model()->index(row, 0)).center());
            return true;
        }
    }
    return false;
}

void Probe::goHome() const {
    LauncherWindow::instance()->goHome();
}

QStringList Probe::holdings() const {
    const Holdings held = holdingsOf(*LauncherWindow::instance());
    QStringList numbers;
    for (const qint64 number : {held.counts.widgets, held.counts.objects, held.counts.descriptors,
                                held.counts.matchRules, held.residentBytes, held.allocatedBytes})
        numbers.append(QString::number(number));
    return numbers;
}

QStringList Probe::clippedTexts() const {
    return ::clippedTexts();
}

QStringList Probe::paintedTexts(const QString &className) const {
    QStringList texts;
    for (QWidget *const widget : QApplication::allWidgets()) {
        if (!widget->inherits(className.toLatin1().constData()))
            continue;
        TextRecorder recorder(widget->size());
        widget->render(&recorder);
        for (const TextRecorder::Text &text : recorder.texts())
            texts.append(text.text);
    }
    return texts;
}

bool Probe::isScreenUpToDate() const {
    LauncherWindow *const window = LauncherWindow::instance();
    const auto plain = [](const QPixmap &picture) {
        return picture.toImage().convertToFormat(QImage::Format_RGB32);
    };
    return plain(window->screen()->grabWindow(window->winId())) == plain(window->grab());
}

bool Probe::grab(const QString &file) const {
    LauncherWindow *const window = LauncherWindow::instance();
    QPixmap picture = window->grab();
    for (QWidget *const above : {QApplication::activeModalWidget(), QApplication::activePopupWidget()}) {
        if (above)
            QPainter(&picture).drawPixmap(above->pos() - window->pos(), above->grab());
    }
    return picture.save(file);
}
