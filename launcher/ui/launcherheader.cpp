// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/launcherheader.h"

#include "ui/backbutton.h"

#include <timebutton.h>

#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int headerHeight = 58;
constexpr int headerMargin = 6;
constexpr QSize smallestBackButton(150, 46);

} // namespace

LauncherHeader::LauncherHeader(QWidget *parent)
    : QLabel(parent), backPushButton(new BackButton), timeButton(new TimeButton) {
    setProperty("palette_id", u"Chrome"_s);
    setAutoFillBackground(true);
    timeButton->setProperty("palette_id", u"TimeButton"_s);
    setupLayout();
    backPushButton->hide();
}

void LauncherHeader::hideBackButton() {
    backPushButton->hide();
}

void LauncherHeader::setBackButtonText(const QString &text) {
    backPushButton->setText(u"◄ "_s + text);
    backPushButton->show();
}

void LauncherHeader::setupLayout() {
    auto *const layout = new QHBoxLayout;
    layout->addWidget(backPushButton);
    layout->addStretch(0);
    layout->addWidget(timeButton);
    setLayout(layout);
    setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    layout->setContentsMargins(headerMargin, headerMargin, headerMargin, headerMargin);
    setMinimumHeight(headerHeight);
    backPushButton->setMinimumSize(smallestBackButton);
}

QSize LauncherHeader::minimumSizeHint() const {
    return layout()->minimumSize();
}

QRect LauncherHeader::captionRect() const {
    const int left =
        backPushButton->isHidden() ? headerMargin : backPushButton->geometry().right() + headerMargin;
    const int right = timeButton->x() - headerMargin;
    // As wide as it can be around the middle, or, for longer texts, all there is between the buttons.
    const int reach = qMin(width() / 2 - left, right - width() / 2);
    const QRect centred(width() / 2 - reach, 0, 2 * reach, height());
    const bool fits = fontMetrics().horizontalAdvance(text()) <= centred.width();
    return fits ? centred : QRect(left, 0, right - left, height());
}

void LauncherHeader::paintEvent(QPaintEvent *) {
    const QRect rect = captionRect();
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect, int(alignment()),
                     fontMetrics().elidedText(text(), Qt::ElideRight, qMax(0, rect.width())));
}
