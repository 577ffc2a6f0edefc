// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/RgbaColor.h"
#include "widgets/buttons/PaintedButton.h"

namespace lumora
{

/// Shows a color and, while it is active, takes each color that is picked in the shared panel. Several wells can be
/// active at once; activating one exclusively makes the others inactive.
class ColorWell : public PaintedButton
{
    Q_OBJECT
    Q_PROPERTY(bool active READ isActive)

public:
    explicit ColorWell(QWidget *parent = nullptr);
    ~ColorWell() override;

    const RgbaColor &color() const { return m_color; }
    /// Sends no action, as only picking does. While the well is active, the picker shows the color, too.
    void setColor(const RgbaColor &color);

    bool isActive() const override { return m_active; }
    /// Connects the well to the shared color panel, which takes the well's color and is shown.
    virtual void activate(bool exclusive);
    virtual void deactivate();

    /// Makes every active well inactive.
    static void deactivateAll();
    /// The well that the last `deactivateAll` made for its purpose; null before the first.
    static ColorWell *hiddenWell();

    /// The action of a click: an active well becomes inactive; an inactive one becomes active, and without Shift the
    /// only active one.
    void performActivationClickWithShiftDown(bool shiftDown);

    QSize sizeHint() const override;

signals:
    /// The user picked a color while the well was active; the well already has it.
    void colorPicked(lumora::ColorWell *sender);

protected:
    /// Becomes active in the ordinary way: as one of the active wells, with the panel.
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
