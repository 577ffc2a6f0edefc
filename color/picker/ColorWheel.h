// SPDX-License-Identifier: MIT
#pragma once

#include "PickerModel.h"
#include "color/picking/Wheel.h"

#include "widgets/style/KeyboardFocus.h"

#include <QImage>
#include <QWidget>

namespace lumora
{

/// The disc of hues and saturations at the picked brightness, with a ring on the picked one. Clicking and dragging
/// pick; with the keyboard, left and right turn the hue by a degree, up and down change the saturation by one percent,
/// ten times as much with Shift.
class ColorWheel final : public QWidget
{
    Q_OBJECT

public:
    /// The model has to outlive the wheel.
    explicit ColorWheel(PickerModel *model, QWidget *parent = nullptr);

    PickerModel *model() const { return m_model; }
    /// Where the ring's centre is.
    QPointF markerCenter() const;
    /// The value in words, as a screen reader reads it.
    QString valueText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    WheelGeometry geometryOfWheel() const;
    void pick(const QPointF &point);
    void announce();
    const QImage &disc() const;

    PickerModel *m_model;
    /// The fully bright disc, drawn once for a size and scale factor; dimming it is exact, since brightness scales
    /// every component alike.
    mutable QImage m_disc;
    KeyboardFocus m_keyboardFocus;
    bool m_dragging = false;
};

} // namespace lumora
