// SPDX-License-Identifier: MIT
#pragma once

#include "PickerModel.h"
#include "color/picking/Wheel.h"

#include "widgets/style/KeyboardFocus.h"

#include <QImage>
#include <QWidget>

namespace lumora
{

/// The disc of hues and saturations at the picked brightness, with a ring at the picked color. Clicking and dragging
/// pick. On the keyboard, left and right turn the hue by a degree, and up and down change the saturation by one
/// percent; with Shift, ten times as much.
class ColorWheel final : public QWidget
{
    Q_OBJECT

public:
    /// The model must outlive the wheel.
    explicit ColorWheel(PickerModel *model, QWidget *parent = nullptr);

    PickerModel *model() const { return m_model; }
    /// The center of the ring.
    QPointF markerCenter() const;
    /// The value in words, for screen readers.
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
    /// The fully bright disc, drawn once for each size and scale factor. Dimming it is exact, since brightness scales
    /// every component by the same factor.
    mutable QImage m_disc;
    KeyboardFocus m_keyboardFocus;
    bool m_dragging = false;
};

} // namespace lumora
