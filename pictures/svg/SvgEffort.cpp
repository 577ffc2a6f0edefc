// SPDX-License-Identifier: MIT
#include "SvgEffort.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace lumora
{

namespace
{

/// Edge length of the picture that is measured for; the figures do not depend on it.
constexpr int edge = 1024;
constexpr int dotsPerInch = 96;

/// Qt's reader drops what of a path comes after this, without an error.
constexpr int mostElementsOfPath = 0x7FFF;

/// A round line end or a curve takes several points.
constexpr double pointsPerDash = 4;

class MeasuringEngine final : public QPaintEngine
{
public:
    MeasuringEngine() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState &changed) override
    {
        if (changed.state() & DirtyPen)
            m_pen = changed.pen();
        if (changed.state() & DirtyBrush)
            m_filled = changed.brush().style() != Qt::NoBrush;
        if (changed.state() & DirtyTransform)
            m_transform = changed.transform();
    }

    void drawPath(const QPainterPath &path) override
    {
        const double fill = area(path.controlPointRect());
        if (m_filled)
            m_effort.coverage += fill;
        m_effort.points += path.elementCount() < mostElementsOfPath ? path.elementCount() : HUGE_VAL;
        if (m_pen.style() == Qt::NoPen)
            return;
        const double reach = m_pen.widthF();
        m_effort.coverage += area(path.controlPointRect().adjusted(-reach, -reach, reach, reach));
        if (m_pen.style() != Qt::SolidLine)
            m_effort.points += pointsPerDash * dashes(path);
    }

    void drawPixmap(const QRectF &target, const QPixmap &, const QRectF &) override
    {
        m_effort.coverage += area(target);
    }
    void drawImage(const QRectF &target, const QImage &, const QRectF &, Qt::ImageConversionFlags) override
    {
        m_effort.coverage += area(target);
    }
    void drawPolygon(const QPointF *points, int count, PolygonDrawMode) override
    {
        QPainterPath path;
        path.addPolygon(QPolygonF(QList<QPointF>(points, points + count)));
        drawPath(path);
    }

    SvgEffort effort() const { return m_effort; }

private:
    double area(const QRectF &rectangle) const
    {
        const QRectF seen = m_transform.mapRect(rectangle) & QRectF(0, 0, edge, edge);
        const double share = seen.width() * seen.height() / (edge * edge);
        // What is no number would pass every bound.
        return std::isfinite(share) ? share : HUGE_VAL;
    }

    double dashes(const QPainterPath &path) const
    {
        const QList<qreal> pattern = m_pen.dashPattern();
        const double period = std::accumulate(pattern.begin(), pattern.end(), 0.0) * std::max(m_pen.widthF(), 1e-9);
        const double count = static_cast<double>(pattern.size()) * path.length() / period;
        return std::isfinite(count) ? count : HUGE_VAL;
    }

    SvgEffort m_effort;
    QPen m_pen;
    QTransform m_transform;
    bool m_filled = false;
};

class MeasuringDevice final : public QPaintDevice
{
public:
    QPaintEngine *paintEngine() const override { return &m_engine; }
    SvgEffort effort() const { return m_engine.effort(); }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return edge;
        case PdmDepth:
            return 32;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return dotsPerInch;
        case PdmDevicePixelRatio:
            return 1;
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    mutable MeasuringEngine m_engine;
};

} // namespace

SvgEffort svgEffort(QSvgRenderer &renderer)
{
    MeasuringDevice device;
    QPainter painter(&device);
    renderer.render(&painter, QRectF(0, 0, edge, edge));
    painter.end();
    return device.effort();
}

} // namespace lumora
