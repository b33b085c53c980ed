// SPDX-License-Identifier: GPL-3.0-or-later
#include "questionpanel.h"

#include <fontsizes.h>

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QSize buttonSize(150, 52);
constexpr int boxWidth = 560;
constexpr int boxMargin = 24;
constexpr qreal radius = 10;
constexpr int dimming = 128;

QPushButton *makeButton(const QString &text) {
    auto *const button = new QPushButton(text);
    button->setFont(FontSizes::sized(button->font(), FontSizes::Large, QFont::Bold));
    button->setMinimumSize(buttonSize);
    // Enter presses it too.
    button->setAutoDefault(true);
    return button;
}

QLabel *makeLabel() {
    auto *const label = new QLabel;
    label->setFont(FontSizes::sized(label->font(), FontSizes::Large, QFont::Bold));
    label->setAlignment(Qt::AlignCenter);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

QuestionPanel::QuestionPanel(QWidget *parent)
    : QWidget(parent),
      box(new QWidget(this)),
      questionLabel(makeLabel()),
      subjectLabel(makeLabel()),
      yesButton(makeButton(tr("Yes"))),
      noButton(makeButton(tr("No"))) {
    auto *const buttons = new QHBoxLayout;
    buttons->addWidget(yesButton);
    buttons->addStretch();
    buttons->addWidget(noButton);
    auto *const boxLayout = new QVBoxLayout(box);
    boxLayout->setContentsMargins(boxMargin, boxMargin, boxMargin, boxMargin);
    boxLayout->setSpacing(12);
    boxLayout->addWidget(questionLabel);
    boxLayout->addWidget(subjectLabel);
    boxLayout->addSpacing(12);
    boxLayout->addLayout(buttons);
    box->setFixedWidth(boxWidth);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(box, 0, Qt::AlignCenter);

    connect(yesButton, &QPushButton::clicked, this, &QuestionPanel::accept);
    connect(noButton, &QPushButton::clicked, this, &QuestionPanel::refuse);
    parent->installEventFilter(this);
    hide();
}

void QuestionPanel::ask(const QString &question, const QString &subject) {
    questionLabel->setText(question);
    subjectLabel->setText(
        subjectLabel->fontMetrics().elidedText(subject, Qt::ElideMiddle, boxWidth - 2 * boxMargin));
    setGeometry(parentWidget()->rect());
    show();
    raise();
    noButton->setFocus();
}

void QuestionPanel::accept() {
    hide();
    emit accepted();
    emit closed();
}

void QuestionPanel::refuse() {
    hide();
    emit closed();
}

bool QuestionPanel::event(QEvent *event) {
    // What is pressed beside the box does not reach the page below.
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease)
        return true;
    return QWidget::event(event);
}

bool QuestionPanel::eventFilter(QObject *object, QEvent *event) {
    if (event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(object, event);
}

void QuestionPanel::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Escape)
        refuse();
    // Any other key stays here as well: the page below is not to answer it.
    event->accept();
}

bool QuestionPanel::focusNextPrevChild(bool) {
    (yesButton->hasFocus() ? noButton : yesButton)->setFocus();
    return true;
}

void QuestionPanel::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    QColor shade = palette().color(QPalette::Shadow);
    shade.setAlpha(dimming);
    painter.fillRect(rect(), shade);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Dark), 2));
    painter.setBrush(palette().window());
    painter.drawRoundedRect(QRectF(box->geometry()).adjusted(1, 1, -1, -1), radius, radius);
}
