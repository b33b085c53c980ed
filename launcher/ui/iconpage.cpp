// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/iconpage.h"

#include "ui/icongrid.h"

#include <fontsizes.h>
#include <thumbscroll.h>

#include <QEvent>
#include <QGridLayout>
#include <QPainter>

namespace {

constexpr int textMargin = 40;
constexpr int gapBetweenLines = 12;

} // namespace

IconPage::IconPage(QWidget *parent) : QWidget(parent) {
    auto *const scrolledGrid = IconGrid::makeButtonsLayout();
    grid = scrolledGrid;
    setLayout(grid);
    scroll = new ThumbScroll(this, Qt::Vertical);
    scrolledGrid->scroll = scroll;
}

void IconPage::setEmptyText(const QString &title, const QString &hint) {
    emptyTitle = title;
    emptyHint = hint;
    update();
}

QSize IconPage::minimumSizeHint() const {
    return {1, 1};
}

int IconPage::neededHeight(int rows) const {
    const int surplus = rows - IconGrid::pageRows;
    if (surplus <= 0)
        return 0;
    const QMargins margins = grid->contentsMargins();
    const int spacing = grid->verticalSpacing();
    const int fiveRows = height() - margins.top() - margins.bottom() + spacing;
    return height() + surplus * fiveRows / IconGrid::pageRows;
}

bool IconPage::event(QEvent *event) {
    const bool isHandled = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize) {
        scroll->setNeededLength(neededHeight(IconGrid::shareRows(grid)));
        update();
    }
    return isHandled;
}

void IconPage::paintEvent(QPaintEvent *) {
    if (!IconGrid::isEmpty(grid))
        return;
    const QFont titleFont = FontSizes::sized(font(), FontSizes::Large, QFont::Bold);
    const QFont hintFont = FontSizes::sized(font(), FontSizes::Text, QFont::Normal);
    const QRect room = rect().adjusted(textMargin, 0, -textMargin, 0);
    constexpr int flags = Qt::AlignHCenter | Qt::TextWordWrap;
    QRect title = QFontMetrics(titleFont).boundingRect(room, flags, emptyTitle);
    QRect hint = QFontMetrics(hintFont).boundingRect(room, flags, emptyHint);
    title.moveTop(room.center().y() - (title.height() + gapBetweenLines + hint.height()) / 2);
    hint.moveTop(title.bottom() + 1 + gapBetweenLines);

    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.setFont(titleFont);
    painter.drawText(title, flags, emptyTitle);
    painter.setFont(hintFont);
    painter.drawText(hint, flags, emptyHint);
}
