// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// A separator: one straight line in the palette's dark colour.
///
/// The thickness is in device-independent pixels. A horizontal line takes the width it is given and exactly its
/// thickness in height; a vertical line the other way round. GUI thread only.
class PlainLine : public QWidget {
    Q_OBJECT

public:
    enum Direction { Horizontal, Vertical };

    PlainLine(Direction direction, unsigned int thickness, QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int lineThickness;
};
