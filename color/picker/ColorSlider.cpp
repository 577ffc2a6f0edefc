// SPDX-License-Identifier: MIT
#include "ColorSlider.h"

#include "ColorPainting.h"
#include "PickerMetrics.h"
#include "widgets/style/Palette.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace lumora
{

namespace
{

constexpr qreal disabledOpacity = 0.4;

} // namespace

ColorSlider::ColorSlider(QWidget *parent) : QSlider(Qt::Horizontal, parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

void ColorSlider::setStops(const QGradientStops &stops)
{
    if (m_stops == stops)
        return;
    m_stops = stops;
    update();
}

QPointF ColorSlider::knobCenter() const
{
    const QRectF rail = track();
    const qreal inset = metrics::pickerKnob / 2.0;
    const qreal span = rail.width() - 2 * inset;
    const int range = maximum() - minimum();
    const qreal fraction = range == 0 ? 0 : static_cast<qreal>(value() - minimum()) / range;
    const qreal along = layoutDirection() == Qt::RightToLeft ? 1 - fraction : fraction;
    return {rail.x() + inset + along * span, rail.center().y()};
}

QSize ColorSlider::sizeHint() const
{
    return {100, metrics::pickerSliderHeight};
}

QSize ColorSlider::minimumSizeHint() const
{
    return {3 * metrics::pickerKnob, metrics::pickerSliderHeight};
}

bool ColorSlider::event(QEvent *event)
{
    if (m_keyboardFocus.follow(event))
        update();
    return QSlider::event(event);
}

void ColorSlider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(disabledOpacity);
    const QRectF rail = track();
    const qreal corner = rail.height() / 2;
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    QLinearGradient gradient(mirrored ? rail.topRight() : rail.topLeft(), mirrored ? rail.topLeft() : rail.topRight());
    gradient.setStops(m_stops);
    paintTransparencyPattern(painter, rail, corner);
    painter.setPen(QPen(palette::swatchOutline, 1));
    painter.setBrush(gradient);
    painter.drawRoundedRect(rail.adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);

    QRectF knob(0, 0, metrics::pickerKnob, metrics::pickerKnob);
    knob.moveCenter(knobCenter());
    painter.setPen(QPen(palette::markerEdge, 1));
    painter.setBrush(palette::marker);
    painter.drawEllipse(knob.adjusted(0.5, 0.5, -0.5, -0.5));
    if (hasFocus() && m_keyboardFocus.isShown())
        paintFocusRing(painter, knob.adjusted(1, 1, -1, -1), knob.width() / 2 - 1);
}

void ColorSlider::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    setSliderDown(true);
    takeKnobTo(event->position().x());
}

void ColorSlider::mouseMoveEvent(QMouseEvent *event)
{
    if (isSliderDown())
        takeKnobTo(event->position().x());
}

void ColorSlider::mouseReleaseEvent(QMouseEvent *)
{
    setSliderDown(false);
}

QRectF ColorSlider::track() const
{
    QRectF rail(0, 0, width(), metrics::pickerSliderTrack);
    rail.moveCenter(QRectF(rect()).center());
    return rail.adjusted(2, 0, -2, 0);
}

void ColorSlider::takeKnobTo(qreal x)
{
    const QRectF rail = track();
    const qreal inset = metrics::pickerKnob / 2.0;
    const qreal span = rail.width() - 2 * inset;
    if (span <= 0)
        return;
    const qreal along = std::clamp<qreal>((x - rail.x() - inset) / span, 0, 1);
    const qreal fraction = layoutDirection() == Qt::RightToLeft ? 1 - along : along;
    setValue(minimum() + static_cast<int>(std::lround(fraction * (maximum() - minimum()))));
}

} // namespace lumora
