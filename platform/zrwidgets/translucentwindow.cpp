// SPDX-License-Identifier: GPL-3.0-or-later
#include "translucentwindow.h"

#include "fontsizes.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int buttonHeight = 52;
constexpr int widestContents = 560;

} // namespace

TranslucentWindow::TranslucentWindow(QWidget *parent, int sideMargin, int edgeMargin, int dimming)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint),
      contentsLayout(new QVBoxLayout(this)),
      freeMargins(sideMargin, edgeMargin),
      dimmingAlpha(qBound(0, dimming, 255)) {
    setProperty("palette_id", u"GenericWindow"_s);
    // Letters as in the window it covers.
    setAttribute(Qt::WA_WindowPropagation);
    setModal(true);
    contentsLayout->setContentsMargins(sideMargin, edgeMargin, sideMargin, edgeMargin);
    contentsLayout->addStretch(1);
    contentsLayout->addStretch(1);
    for (QWidget *behind = parent; behind; behind = behind->parentWidget()) {
        if (behind->isWindow() || !behind->parentWidget())
            behind->installEventFilter(this);
    }
}

QPushButton *TranslucentWindow::createButton(const QString &text, bool isDefault) {
    auto *const button = new QPushButton(text, this);
    button->setFont(FontSizes::sized(font(), FontSizes::Large, QFont::Bold));
    button->setMinimumHeight(buttonHeight);
    button->setAutoDefault(isDefault);
    button->setDefault(isDefault);
    return button;
}

void TranslucentWindow::addContent(QWidget *content, int left, int top, int right, int bottom) {
    auto *const row = new QHBoxLayout;
    row->setContentsMargins(left, top, right, bottom);
    row->addStretch(1);
    row->addWidget(content);
    row->addStretch(1);
    // Above the free space at the end.
    contentsLayout->insertLayout(contentsLayout->count() - 1, row);
}

QWidget *TranslucentWindow::coveredWindow() const {
    QWidget *window = parentWidget() ? parentWidget()->window() : nullptr;
    while (window && !window->isVisible() && window->parentWidget())
        window = window->parentWidget()->window();
    return window;
}

QSize TranslucentWindow::wholeRoom() const {
    return (coveredWindow() ? coveredWindow()->size() : screen()->availableSize()) - 2 * freeMargins;
}

QSize TranslucentWindow::roomForContents() const {
    return {qMin(widestContents, wholeRoom().width()), wholeRoom().height()};
}

void TranslucentWindow::fitContents() {}

void TranslucentWindow::cover() {
    QWidget *const covered = coveredWindow();
    // Contents that were wider before they were fitted would keep the dialog as wide.
    fitContents();
    contentsLayout->activate();
    setGeometry(covered ? covered->geometry() : screen()->availableGeometry());
    backdrop = covered ? covered->grab() : QPixmap();
    update();
}

void TranslucentWindow::showEvent(QShowEvent *event) {
    // A pop-up would keep the first press and every key for itself.
    while (QWidget *const popup = QApplication::activePopupWidget()) {
        if (!popup->close())
            break;
    }
    cover();
    QDialog::showEvent(event);
    // Where no window manager does it.
    activateWindow();
}

void TranslucentWindow::hideEvent(QHideEvent *event) {
    backdrop = QPixmap();
    QDialog::hideEvent(event);
    giveKeysBack();
}

void TranslucentWindow::giveKeysBack() {
    QWidget *const covered = coveredWindow();
    if (!covered || !covered->isVisible())
        return;
    // When Qt has left our modal state, and perhaps we are deleted: another message may still be open.
    QMetaObject::invokeMethod(
        covered,
        [covered] {
            QWidget *const modal = QApplication::activeModalWidget();
            (modal ? modal : covered)->activateWindow();
        },
        Qt::QueuedConnection);
}

bool TranslucentWindow::eventFilter(QObject *watched, QEvent *event) {
    const bool isMoved = event->type() == QEvent::Resize || event->type() == QEvent::Move;
    const bool isShownOrHidden = event->type() == QEvent::Show || event->type() == QEvent::Hide;
    if (isVisible() && isMoved && watched == coveredWindow())
        cover();
    // A dialog of which this one is a child came up in front, or went and leaves another window to be covered.
    if (isVisible() && isShownOrHidden)
        QMetaObject::invokeMethod(this, &TranslucentWindow::comeToFront, Qt::QueuedConnection);
    return QDialog::eventFilter(watched, event);
}

void TranslucentWindow::comeToFront() {
    if (!isVisible())
        return;
    cover();
    raise();
    activateWindow();
}

void TranslucentWindow::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    painter.drawPixmap(0, 0, backdrop);
    QColor dim = palette().color(QPalette::Shadow);
    dim.setAlpha(dimmingAlpha);
    painter.fillRect(rect(), dim);
}

void TranslucentWindow::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
    case Qt::Key_Back:
        reject();
        break;
    case Qt::Key_Left:
        focusPreviousChild();
        break;
    case Qt::Key_Right:
        focusNextChild();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // Left to itself a dialog would press its default button, whichever one the user has gone to.
        if (auto *const button = qobject_cast<QPushButton *>(focusWidget())) {
            button->click();
            break;
        }
        [[fallthrough]];
    default:
        QDialog::keyPressEvent(event);
    }
}
