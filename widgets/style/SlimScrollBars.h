// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace lumora
{

/// Draws scroll bars as a thumb alone, without groove and arrows; everything else as its base style does.
class SlimScrollBars final : public QProxyStyle
{
    Q_OBJECT

public:
    static constexpr int extent = 12;        ///< across the bar, the distance to the content included
    static constexpr int thumbThickness = 6; ///< at the bar's outer edge
    static constexpr int shortestThumb = 24;

    explicit SlimScrollBars(const QString &baseStyle);

    using QProxyStyle::polish;
    void polish(QWidget *widget) override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                         const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;
};

} // namespace lumora
