// SPDX-License-Identifier: MIT
#pragma once

#include "PaintedButton.h"

#include <QColor>
#include <QFont>

namespace lumora
{

/// The base of buttons with a filled, rounded shape and a centered white text.
class FilledButton : public PaintedButton
{
    Q_OBJECT
    Q_PROPERTY(QColor normalColor READ normalColor WRITE setNormalColor)
    Q_PROPERTY(QColor color READ color)
public:
    QColor normalColor() const { return m_normalColor; }
    /// Also sets the current color, even under the pointer.
    void setNormalColor(const QColor &color);
    /// The color of the shape now.
    QColor color() const { return m_color; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    FilledButton(const QFont &font, QWidget *parent);

    void setColor(const QColor &color);
    /// The color under the pointer.
    virtual QColor colorUnderPointer() const = 0;
    /// The color of a pressed button.
    virtual QColor colorPressed() const = 0;
    /// The part of a button of that size that an icon covers (a width of 0 means any width, never
    /// mirrored); empty without an icon.
    virtual QRectF iconInk(QSizeF) const { return {}; }
    virtual void drawIcon(QPainter &) {}

    void mouseEntered() override;
    void mouseExited() override;
    void mouseDown() override;
    void keyDown() override;
    void keyUp() override;
    void drawRect(QPainter &painter) override;
    void drawFocusRing(QPainter &painter) override;

private:
    void drawText(QPainter &painter);

    QFont m_font;
    QColor m_normalColor;
    QColor m_color;
};

} // namespace lumora
