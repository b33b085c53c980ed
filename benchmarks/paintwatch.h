// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QObject>
#include <QRegion>

class QWidget;

/// Sees what of a widget is painted again, or of every widget when it watches the application.
class PaintWatch : public QObject {
    Q_OBJECT

public:
    explicit PaintWatch(QObject *watched);

    int paintings() const { return count; }
    /// In pixels, of all widgets together; what lies over another counts for both.
    int area() const;
    /// What has been painted of each widget since the watch began, in the widget's own coordinates.
    const QHash<const QWidget *, QRegion> &regions() const { return painted; }

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    int count = 0;
    QHash<const QWidget *, QRegion> painted;
};
