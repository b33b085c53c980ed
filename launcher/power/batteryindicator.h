// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "power/apminfo.h"
#include "power/apmreaderthread.h"

#include <pressinglabel.h>
#include <statuspanel.h>

#include <QColor>
#include <QPainterPath>

class QPainter;
class StatusLabel;

/// The battery in the left column: its charge as a picture and, in a panel that a press opens, as text. GUI thread only.
///
/// It reads the power state itself. A charge that moves by two per cent or less leaves the bar as it is, so that it does not
/// flicker; all indicators share the charge that the bar shows.
class BatteryIndicator : public PressingLabel {
    Q_OBJECT

public:
    explicit BatteryIndicator(QWidget *parent = nullptr);
    ~BatteryIndicator() override;

public slots:
    void redrawFromApmData(const ApmInfo &data);
    void showPanel();

protected:
    void changeEvent(QEvent *event) override;

private:
    QColor getColorFromApmInfo(const ApmInfo &info) const;
    void redrawPixmap(const ApmInfo &info);
    void redrawStatusLabel(const ApmInfo &info);
    QPainterPath chargePath(const ApmInfo &info) const;
    void drawBolt(QPainter &painter, const QPainterPath &bolt) const;
    void drawCross(QPainter &painter) const;
    void setCaption(int row, const QString &text, const QColor &color);
    void setValue(int column, int row, const QString &text, const QColor &color);

    QColor levelColor;
    ApmReaderThread reader;
    StatusPanel panel;
    StatusLabel *textTable;
    ApmInfo lastRecord;
};
