// SPDX-License-Identifier: MIT
#pragma once

#include "color/picker/HexField.h"

namespace lumora
{

/// The field for the color's text, written in the color itself on a rounded background that keeps it readable.
class ColorField final : public HexField
{
    Q_OBJECT

public:
    explicit ColorField(QWidget *parent = nullptr);

    QColor textColor() const { return palette().color(QPalette::Text); }
    /// Also chooses the background: white or dark, whichever has more contrast with the color.
    void setTextColor(const RgbaColor &color);
    QColor groundColor() const { return m_groundColor; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_groundColor;
};

} // namespace lumora
