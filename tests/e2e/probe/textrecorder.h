// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPaintDevice>
#include <QRectF>
#include <QString>

#include <memory>

/// A paint device that keeps no picture but every text that is painted, with the place of its ink.
class TextRecorder : public QPaintDevice {
public:
    struct Text {
        QString text;
        QRectF ink;
    };

    explicit TextRecorder(const QSize &size);
    ~TextRecorder() override;

    const QList<Text> &texts() const;

    QPaintEngine *paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;

    QSize size;
    std::unique_ptr<Engine> engine;
};
