// SPDX-License-Identifier: GPL-3.0-or-later
#include "clippedtexts.h"

#include "textrecorder.h"

#include <ledpanel.h>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

// Letters are smoothed; a pixel more is no cut.
constexpr qreal tolerance = 1;

/// The part of the widget that no parent cuts off.
QRectF seenPart(const QWidget *widget) {
    QRect seen = widget->rect();
    QPoint origin;
    const QWidget *inner = widget;
    while (!inner->isWindow()) {
        origin += inner->pos();
        inner = inner->parentWidget();
        seen &= inner->rect().translated(-origin);
    }
    return seen;
}

bool scrolls(const QWidget *widget) {
    return qobject_cast<const LedPanel *>(widget) ||
           qobject_cast<const QAbstractScrollArea *>(widget->parentWidget());
}

bool isCut(const TextRecorder::Text &text, const QRectF &seen, bool scrollsDown) {
    if (text.text.contains(u'…'))
        return true;
    const QRectF room = seen.adjusted(-tolerance, -tolerance, tolerance, tolerance);
    if (text.ink.left() < room.left() || text.ink.right() > room.right())
        return true;
    return !scrollsDown && (text.ink.top() < room.top() || text.ink.bottom() > room.bottom());
}

QString nameOf(const QWidget *widget) {
    return QString::fromLatin1(widget->metaObject()->className()) + u' ' + widget->objectName();
}

QStringList clippedTextsOf(QWidget *widget) {
    TextRecorder recorder(widget->size());
    widget->render(&recorder, QPoint(), QRegion(), QWidget::RenderFlags());
    QStringList clipped;
    for (const TextRecorder::Text &text : recorder.texts()) {
        if (isCut(text, seenPart(widget), scrolls(widget)))
            clipped.append(nameOf(widget) + ": "_L1 + text.text);
    }
    return clipped;
}

} // namespace

QStringList clippedTexts() {
    QStringList clipped;
    for (QWidget *const widget : QApplication::allWidgets()) {
        if (widget->isVisible())
            clipped += clippedTextsOf(widget);
    }
    return clipped;
}
