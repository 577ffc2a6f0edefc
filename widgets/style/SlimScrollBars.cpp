// SPDX-License-Identifier: MIT
#include "SlimScrollBars.h"

#include "Palette.h"

#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionSlider>

#include <algorithm>

namespace lumora
{

namespace
{

/// The thumb's opacity at rest.
constexpr float restingOpacity = 0.6F;

/// The thumb's place along a bar of the length.
struct Thumb
{
    int start = 0;
    int length = 0;
};

Thumb thumbOf(const QStyleOptionSlider &bar, int barLength)
{
    const qint64 range = qint64{bar.maximum} - bar.minimum;
    if (range <= 0)
        return {0, barLength};
    const qint64 whole = range + bar.pageStep;
    const auto wanted = static_cast<int>(barLength * qint64{bar.pageStep} / whole);
    const int length = std::min(std::max(wanted, SlimScrollBars::shortestThumb), barLength);
    return {QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition, barLength - length,
                                            bar.upsideDown),
            length};
}

QRect along(const QStyleOptionSlider &bar, int start, int length)
{
    const QRect whole = bar.rect;
    const QRect part = bar.orientation == Qt::Horizontal ? QRect(whole.x() + start, whole.y(), length, whole.height())
                                                         : QRect(whole.x(), whole.y() + start, whole.width(), length);
    return QStyle::visualRect(bar.direction, whole, part);
}

} // namespace

SlimScrollBars::SlimScrollBars(const QString &baseStyle) : QProxyStyle(baseStyle) {}

void SlimScrollBars::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    // The background shows beside the thumb.
    if (qobject_cast<QScrollBar *>(widget) != nullptr)
        widget->setAttribute(Qt::WA_OpaquePaintEvent, false);
}

int SlimScrollBars::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_ScrollBarExtent:
        return extent;
    case PM_ScrollBarSliderMin:
        return shortestThumb;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QRect SlimScrollBars::subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                                     const QWidget *widget) const
{
    const auto *bar = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control != CC_ScrollBar || bar == nullptr)
        return QProxyStyle::subControlRect(control, option, part, widget);
    const int length = bar->orientation == Qt::Horizontal ? bar->rect.width() : bar->rect.height();
    const Thumb thumb = thumbOf(*bar, length);
    switch (part) {
    case SC_ScrollBarGroove:
        return bar->rect;
    case SC_ScrollBarSlider:
        return along(*bar, thumb.start, thumb.length);
    case SC_ScrollBarSubPage:
        return along(*bar, 0, thumb.start);
    case SC_ScrollBarAddPage:
        return along(*bar, thumb.start + thumb.length, length - thumb.start - thumb.length);
    default:
        return {};
    }
}

void SlimScrollBars::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                        const QWidget *widget) const
{
    const auto *bar = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control != CC_ScrollBar || bar == nullptr) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    if (bar->minimum == bar->maximum)
        return;
    QRectF thumb = subControlRect(control, option, SC_ScrollBarSlider, widget);
    if (bar->orientation == Qt::Horizontal)
        thumb.setTop(thumb.bottom() - thumbThickness);
    else if (bar->direction == Qt::RightToLeft)
        thumb.setWidth(thumbThickness);
    else
        thumb.setLeft(thumb.right() - thumbThickness);
    const bool isUsed =
        bar->activeSubControls.testFlag(SC_ScrollBarSlider) && (bar->state & (State_MouseOver | State_Sunken)) != 0;
    QColor color = palette::chromeText;
    if (!isUsed)
        color.setAlphaF(restingOpacity);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    painter->drawRoundedRect(thumb, thumbThickness / 2.0, thumbThickness / 2.0);
    painter->restore();
}

} // namespace lumora
