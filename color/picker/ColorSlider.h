// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/style/KeyboardFocus.h"

#include <QBrush>
#include <QSlider>

namespace lumora
{

/// A horizontal slider whose track shows the colors of its positions. A press anywhere on it moves the knob there.
/// Keyboard and screen reader work as with any slider of the platform.
class ColorSlider final : public QSlider
{
    Q_OBJECT

public:
    explicit ColorSlider(QWidget *parent = nullptr);

    /// The track's colors from the smallest to the largest value; translucent ones are drawn over a pattern.
    void setStops(const QGradientStops &stops);
    /// The middle of the knob at the current value.
    QPointF knobCenter() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QRectF track() const;
    void takeKnobTo(qreal x);

    QGradientStops m_stops;
    KeyboardFocus m_keyboardFocus;
};

} // namespace lumora
