// SPDX-License-Identifier: GPL-3.0-or-later
#include "messageview.h"

#include "fontsizes.h"

#include <QScrollBar>
#include <QScroller>
#include <QTextBlockFormat>

namespace {

constexpr qreal detailSpacing = 12;

void appendParagraph(QTextCursor &cursor, const QString &text, const QFont &font, qreal spaceAbove) {
    QTextBlockFormat block;
    block.setAlignment(Qt::AlignHCenter);
    block.setTopMargin(spaceAbove);
    QTextCharFormat letters;
    letters.setFont(font);
    if (cursor.atStart())
        cursor.setBlockFormat(block);
    else
        cursor.insertBlock(block);
    cursor.setCharFormat(letters);
    const QString shown = text.size() > MessageView::longestShown
                              ? text.first(MessageView::longestShown) + QChar(0x2026)
                              : text;
    cursor.insertText(shown, letters);
}

} // namespace

MessageView::MessageView(QWidget *parent) : QTextEdit(parent) {
    setFrameShape(QFrame::NoFrame);
    setReadOnly(true);
    setTextInteractionFlags(Qt::NoTextInteraction);
    setFocusPolicy(Qt::NoFocus);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    QScroller::grabGesture(viewport(), QScroller::LeftMouseButtonGesture);
}

MessageView::~MessageView() {
    // Qt would keep the recogniser of the thumb's movements for ever.
    QScroller::ungrabGesture(viewport());
}

void MessageView::setMessage(const QString &text, const QString &detail) {
    clear();
    QTextCursor cursor(document());
    appendParagraph(cursor, text, FontSizes::sized(font(), FontSizes::Large, QFont::Bold), 0);
    if (!detail.isEmpty())
        appendParagraph(cursor, detail, FontSizes::sized(font(), FontSizes::Text, QFont::Normal),
                        detailSpacing);
    // What is inserted pushes the view's own cursor to the end, and that is kept in sight.
    moveCursor(QTextCursor::Start);
    verticalScrollBar()->setValue(0);
}

void MessageView::fit(int width, int mostHeight) {
    document()->setTextWidth(width);
    setFixedWidth(width);
    setFixedHeight(qMin(mostHeight, static_cast<int>(document()->size().height()) + 1));
}

bool MessageView::scrollByKey(int key) {
    switch (key) {
    case Qt::Key_Up:
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
        return true;
    case Qt::Key_Down:
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        return true;
    case Qt::Key_PageUp:
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepSub);
        return true;
    case Qt::Key_PageDown:
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
        return true;
    default:
        return false;
    }
}
