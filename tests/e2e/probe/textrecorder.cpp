// SPDX-License-Identifier: GPL-3.0-or-later
#include "textrecorder.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QTransform>

namespace {

constexpr int dotsPerInch = 96;
constexpr qreal millimetresPerInch = 25.4;

} // namespace

class TextRecorder::Engine : public QPaintEngine {
public:
    Engine() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState &state) override {
        if (state.state() & DirtyTransform)
            transform = state.transform();
    }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawPath(const QPainterPath &) override {}
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}
    void drawTextItem(const QPointF &position, const QTextItem &item) override {
        const QRectF ink = QFontMetricsF(item.font()).tightBoundingRect(item.text());
        texts.append({item.text(), transform.mapRect(ink.translated(position))});
    }

    QTransform transform;
    QList<Text> texts;
};

TextRecorder::TextRecorder(const QSize &size_) : size(size_), engine(std::make_unique<Engine>()) {}

TextRecorder::~TextRecorder() = default;

const QList<TextRecorder::Text> &TextRecorder::texts() const {
    return engine->texts;
}

QPaintEngine *TextRecorder::paintEngine() const {
    return engine.get();
}

int TextRecorder::metric(PaintDeviceMetric metric) const {
    switch (metric) {
    case PdmWidth:
        return size.width();
    case PdmHeight:
        return size.height();
    case PdmWidthMM:
        return int(size.width() * millimetresPerInch / dotsPerInch);
    case PdmHeightMM:
        return int(size.height() * millimetresPerInch / dotsPerInch);
    case PdmDepth:
        return 32;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return dotsPerInch;
    default:
        return QPaintDevice::metric(metric);
    }
}
