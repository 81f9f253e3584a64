// SPDX-License-Identifier: MIT
#include "views/TextRecorder.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

namespace velto {

namespace {

class TextEngine final : public QPaintEngine {
public:
    TextEngine() : QPaintEngine(AllFeatures) { }

    void drawTextItem(const QPointF& position, const QTextItem& item) override
    {
        const auto& toDevice = painter()->deviceTransform();
        QPainterPath outline;
        outline.addText(position, item.font(), item.text());
        QRectF room(systemClip().boundingRect());
        if (painter()->hasClipping())
            room &= toDevice.mapRect(painter()->clipBoundingRect());
        texts.push_back(
            {item.text(), toDevice.mapRect(outline.boundingRect()), room, item.font(), painter()->pen().color()});
    }

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override { }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override { }
    void drawPath(const QPainterPath&) override { }
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override { }
    Type type() const override { return User; }

    std::vector<DrawnText> texts;
};

/// Has the resolution of `view`, so that text gets the same metrics, but only one pixel for each point.
class TextDevice final : public QPaintDevice {
public:
    explicit TextDevice(const QWidget& view) : m_view(view) { }

    QPaintEngine* paintEngine() const override { return &m_engine; }
    const std::vector<DrawnText>& texts() const { return m_engine.texts; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return m_view.width();
        case PdmHeight:
            return m_view.height();
        case PdmDpiX:
        case PdmPhysicalDpiX:
            return m_view.logicalDpiX();
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return m_view.logicalDpiY();
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        case PdmDepth:
            return 32;
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    const QWidget& m_view;
    mutable TextEngine m_engine;
};

} // namespace

std::vector<DrawnText> drawnTexts(QWidget& view)
{
    TextDevice device(view);
    view.render(&device);
    return device.texts();
}

} // namespace velto
