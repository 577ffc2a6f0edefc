// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace lumora
{

/// Draws scroll bars as a thumb only, without groove and arrows, and everything else like its base style.
class SlimScrollBars final : public QProxyStyle
{
    Q_OBJECT

public:
    static constexpr int extent = 12;        ///< the bar's width, including the distance to the content
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
