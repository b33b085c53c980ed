// SPDX-License-Identifier: GPL-3.0-or-later
#include "popuppanel.h"

#include "popupplace.h"

#include <QApplication>
#include <QChildEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int usualShadow = 10;
constexpr int padding = 12;
constexpr int spacing = 8;
constexpr int borderWidth = 2;
constexpr qreal radius = 10;
constexpr int shadowAlpha = 10;

void drawShadow(QPainter &painter, const QRectF &frame, int shadowWidth) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, shadowAlpha));
    for (int spread = shadowWidth; spread > 0; spread -= 2)
        painter.drawRoundedRect(frame.adjusted(-spread, -spread, spread, spread), radius + spread,
                                radius + spread);
}

} // namespace

PopupPanel::PopupPanel(QWidget *parent)
    : QWidget(parent, Qt::Popup | Qt::FramelessWindowHint), panelLayout(new QVBoxLayout(this)) {
    setProperty("palette_id", u"GenericWindow"_s);
    // Letters and colours as in the window it belongs to.
    setAttribute(Qt::WA_WindowPropagation);
    // A press on the caller is to close the panel, not to open it again.
    setAttribute(Qt::WA_NoMouseReplay);
    panelLayout->setSpacing(spacing);
    setHeadHeight(0);
}

void PopupPanel::setCallerRect(const QRect &rect) {
    callerRectangle = rect;
}

void PopupPanel::setCallerRectMargin(int margin) {
    callerMargin = margin;
}

void PopupPanel::setClipCallerRect(bool clip) {
    sparesCaller = clip;
}

void PopupPanel::setContentsRect(const QRect &rect) {
    if (rect == fixedContents)
        return;
    fixedContents = rect;
    while (QLayoutItem *const item = panelLayout->takeAt(0))
        delete item;
    panelLayout->setSizeConstraint(QLayout::SetNoConstraint);
    // What the layout had set when it still had something to lay out.
    setMinimumSize(0, 0);
    doResize();
}

int PopupPanel::shadowWidth() const {
    return fixedContents.isEmpty() ? usualShadow : 0;
}

void PopupPanel::addToLayout(QWidget *widget) {
    widget->setParent(this);
    if (panelLayout->indexOf(widget) < 0)
        panelLayout->addWidget(widget);
}

void PopupPanel::childEvent(QChildEvent *event) {
    QWidget::childEvent(event);
    auto *const widget = qobject_cast<QWidget *>(event->child());
    // Leaving is the layout's own business: it drops what is no longer a child of its widget.
    if (event->added() && widget && !widget->isWindow() && fixedContents.isEmpty() &&
        panelLayout->indexOf(widget) < 0)
        panelLayout->addWidget(widget);
}

void PopupPanel::setHeadHeight(int height) {
    constexpr int margin = usualShadow + padding;
    panelLayout->setContentsMargins(margin, margin + height, margin, margin);
}

QRect PopupPanel::contentsArea() const {
    constexpr int margin = usualShadow + padding;
    return rect().adjusted(margin, margin, -margin, -margin);
}

QRect PopupPanel::bounds() const {
    const QWidget *const parent = parentWidget();
    return parent ? parent->window()->geometry() : screen()->availableGeometry();
}

void PopupPanel::doResize() {
    const QRect before = geometry();
    panelLayout->activate();
    const QSize laidOut = sizeHint().expandedTo(minimumSize());
    const QSize size = fixedContents.isEmpty() ? laidOut : fixedContents.size();
    // The shadow may leave the bounds, the panel not.
    const int width = shadowWidth();
    const QMargins shadow(width, width, width, width);
    const QMargins gap(callerMargin, callerMargin, callerMargin, callerMargin);
    setGeometry(placeBeside(callerRectangle.marginsAdded(gap), size.shrunkBy(shadow),
                            bounds().marginsRemoved({4, 4, 4, 4}))
                    .marginsAdded(shadow));
    clipToCaller();
    if (isVisible() && geometry() != before)
        takeBackdrop();
}

void PopupPanel::clipToCaller() {
    const QRect caller = callerRectangle.translated(-pos());
    if (sparesCaller && rect().intersects(caller))
        setMask(QRegion(rect()).subtracted(caller));
    else
        clearMask();
}

void PopupPanel::showEvent(QShowEvent *event) {
    doResize();
    takeBackdrop();
    QWidget::showEvent(event);
}

/// What lies under shadow and corners: a window cannot be translucent without a compositor.
void PopupPanel::takeBackdrop() {
    QWidget *const below = parentWidget() ? parentWidget()->window() : QApplication::activeWindow();
    backdrop = below && below != this ? below->grab(QRect(below->mapFromGlobal(pos()), size())) : QPixmap();
}

void PopupPanel::paintEvent(QPaintEvent *) {
    const int width = shadowWidth();
    const QRectF frame = QRectF(rect()).adjusted(width, width, -width, -width);
    QPainter painter(this);
    painter.fillRect(rect(), palette().dark());
    painter.drawPixmap(0, 0, backdrop);
    painter.setRenderHint(QPainter::Antialiasing);
    drawShadow(painter, frame, width);
    constexpr qreal inset = borderWidth / 2.0;
    painter.setPen(QPen(palette().color(QPalette::Dark), borderWidth));
    painter.setBrush(palette().window());
    painter.drawRoundedRect(frame.adjusted(inset, inset, -inset, -inset), radius, radius);
}

void PopupPanel::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Back)
        close();
    else
        QWidget::keyPressEvent(event);
}
