// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/RgbaColor.h"
#include "widgets/buttons/PaintedButton.h"

namespace lumora
{

/// Shows a color and, while it is active, takes each one that is picked in the shared color panel. Several wells can
/// be active together; activating one exclusively makes the others inactive.
class ColorWell : public PaintedButton
{
    Q_OBJECT
    Q_PROPERTY(bool active READ isActive)

public:
    explicit ColorWell(QWidget *parent = nullptr);
    ~ColorWell() override;

    const RgbaColor &color() const { return m_color; }
    /// Sends no action: only picking does. While the well is active the picker shows the color, too.
    void setColor(const RgbaColor &color);

    bool isActive() const override { return m_active; }
    /// Connects the well to the shared color panel, which takes its color and shows itself.
    virtual void activate(bool exclusive);
    virtual void deactivate();

    /// Makes whichever well is active inactive.
    static void deactivateAll();
    /// The well that the last `deactivateAll` made for its purpose; null before the first.
    static ColorWell *hiddenWell();

    /// What a click on the well does: an active one becomes inactive, another becomes active and, without Shift, the
    /// only one.
    void performActivationClickWithShiftDown(bool shiftDown);

    QSize sizeHint() const override;

signals:
    /// The user picked a color while the well was active; it has taken it.
    void colorPicked(lumora::ColorWell *sender);

protected:
    /// Becomes active as every well does: among the active ones, served by the panel.
    void activateAsOrdinaryWell(bool exclusive);
    void deactivateAsOrdinaryWell();

    void drawRect(QPainter &painter) override;
    void drawFocusRing(QPainter &painter) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void describeColor();
    void joinActiveWells(bool exclusive);
    void takePickedColor(const RgbaColor &color);

    RgbaColor m_color{1.0F, 1.0F, 1.0F, 1.0F};
    bool m_active = false;
    bool m_takesPicked = false;
    bool m_tellsPicker = false;
};

} // namespace lumora
