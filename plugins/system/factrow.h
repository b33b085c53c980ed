// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "systemfacts.h"

#include <QAbstractButton>

/// A line that shows one fact: caption, text, and where the fact is a part of a whole, a bar and its percentage.
///
/// A row that leads on is marked by an arrow, can be pressed, and takes the focus. Paints only when the fact has
/// changed. GUI thread only.
class FactRow : public QAbstractButton {
    Q_OBJECT

public:
    enum Kind { Plain, LeadsOn };

    explicit FactRow(Kind kind, QWidget *parent = nullptr);

    void show(const Fact &fact);
    using QWidget::show;

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void drawTexts(QPainter &painter, const QRect &rect) const;
    void drawPercent(QPainter &painter, const QRect &rect) const;
    void drawArrow(QPainter &painter) const;

    Kind rowKind;
    Fact shownFact;
};
