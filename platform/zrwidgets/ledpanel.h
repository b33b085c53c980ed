// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fontsizes.h"
#include "measquality.h"

#include <QHash>
#include <QList>
#include <QMargins>
#include <QPair>
#include <QWidget>

/// A panel of named lamps.
///
/// A lamp's shape and colour tell its state (see drawLamp), its name stands beside it. Rows shrink from 32 to 17
/// pixels when there are many; what does not fit then is reached by dragging, by the wheel or by the arrow keys, and
/// a mark at the edge shows how far one has come. All names have the largest letters that the rows and the longest
/// name allow, and names that are too long are set tighter. A ring tells the focus, and that the panel is held. A
/// drag is no press. Only lamps that changed are painted again. GUI thread only.
class LedPanel : public QWidget {
    Q_OBJECT

public:
    /// `horizontal` puts the lamps side by side instead of below each other.
    LedPanel(QWidget *parent, bool horizontal);

    /// Whether the panel is a sunk field with rounded corners.
    void setRounded(bool rounded);
    /// Free space around the lamps, in pixels.
    void setMargins(int left, int top, int right, int bottom);

    /// Forgets every lamp; the picture follows at once or, without `rebuild`, with the next `invokeRebuild()`.
    void clear(bool rebuild);
    void add(const QString &name, MeasQuality quality);
    /// Shows the lamps that were added.
    void invokeRebuild();

    using QWidget::update;
    /// Pairs of lamp name and state text (see qualityFromState). Every lamp of that name follows; a name that
    /// is not there is passed over.
    void update(QList<QPair<QString, QString>> &data);

    /// The lamps' names, in order.
    QStringList names() const;
    /// What the first lamp of that name shows; NotMeasured when there is none.
    MeasQuality quality(const QString &name) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The panel was pressed and let go, or Space or Enter was pressed while it had the focus.
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct Led {
        QString name;
        MeasQuality quality;
    };

    QRect ledArea() const;
    int rowHeight() const;
    QRect ledRect(qsizetype index) const;
    QRect nameRect(const QRect &ledRect) const;
    bool areNamesShownIn(FontSizes::PixelSize size) const;
    void chooseLetters();
    int ledLength() const;
    int shownLength() const;
    int farthestOffset() const;
    QRect scrollMark() const;
    void scrollTo(int offset);
    void setHeld(bool held);
    void drawLed(QPainter *painter, const Led &led, const QRect &rect) const;

    QList<Led> leds;
    QMultiHash<QString, qsizetype> indexesByName;
    QMargins ledMargins;
    bool isHorizontal;
    bool isRounded = false;
    bool isDragged = false;
    bool isHeld = false;
    int scrollOffset = 0;
    FontSizes::PixelSize letters = FontSizes::Small;
    QPoint pressPosition;
    int offsetAtPress = 0;
};
