// SPDX-License-Identifier: MIT
#pragma once

#include "color/RgbaColor.h"

#include <QWidget>

namespace lumora
{

/// Shows one colour.
class SwatchWidget final : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    const RgbaColor &color() const { return m_color; }
    void setColor(const RgbaColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    RgbaColor m_color;
};

} // namespace lumora
