// SPDX-License-Identifier: MIT
#include "LBProgressBar.h"

#include "LBProgressBarAccessible.h"
#include "ProgressGeometry.h"
#include "widgets/style/InstallAccessible.h"
#include "widgets/style/Palette.h"

#include <QPainter>

#include <algorithm>
#include <chrono>
#include <cmath>

namespace lumora
{

using namespace progressgeometry;

namespace
{

constexpr std::chrono::milliseconds redrawInterval(1000 / 30);
constexpr QSize hint(200, 20);
constexpr QSize smallest(40, 12);
constexpr qreal shadowHeight = 2;
constexpr qreal outlineInset = 0.5;
/// Stripes more than two pitches outside the bar are never visible.
constexpr qreal stripeReach = 40;
constexpr qreal stripePitch = 20;

/// Whole pixels that cover the size.
QSize pixelSize(const QSizeF &size, qreal devicePixelRatio)
{
    return {static_cast<int>(std::ceil(size.width() * devicePixelRatio)),
            static_cast<int>(std::ceil(size.height() * devicePixelRatio))};
}

} // namespace

LBProgressBar::LBProgressBar(QWidget *parent)
    : QWidget(parent), m_lightColor(palette::progressLight), m_darkColor(palette::progressDark)
{
    installAccessible<LBProgressBar, LBProgressBarAccessible>();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_animator.setInterval(redrawInterval);
    m_animator.setTimerType(Qt::PreciseTimer);
    connect(&m_animator, &QTimer::timeout, this, &LBProgressBar::activateAnimation);
}

void LBProgressBar::setDoubleValue(double value)
{
    if (value != m_doubleValue) {
        m_doubleValue = value;
        update();
        QAccessibleValueChangeEvent changed(this, value);
        QAccessible::updateAccessibility(&changed);
    }
    if (!m_displayedWhenStopped && m_doubleValue >= m_maxValue)
        stopAnimation();
}

void LBProgressBar::setMinValue(double value)
{
    if (value == m_minValue)
        return;
    m_minValue = value;
    update();
}

void LBProgressBar::setMaxValue(double value)
{
    if (value == m_maxValue)
        return;
    m_maxValue = value;
    update();
}

void LBProgressBar::setDisplayedWhenStopped(bool displayed)
{
    if (displayed == m_displayedWhenStopped)
        return;
    m_displayedWhenStopped = displayed;
    update();
}

void LBProgressBar::setLightColor(const QColor &color)
{
    if (color == m_lightColor)
        return;
    m_lightColor = color;
    update();
}

void LBProgressBar::setDarkColor(const QColor &color)
{
    if (color == m_darkColor)
        return;
    m_darkColor = color;
    update();
}

void LBProgressBar::startAnimation()
{
    if (m_animating)
        return;
    m_animating = true;
    runAnimator();
    update();
}

void LBProgressBar::stopAnimation()
{
    if (!m_animating)
        return;
    m_animating = false;
    runAnimator();
    update();
}

QSize LBProgressBar::sizeHint() const
{
    return hint;
}

QSize LBProgressBar::minimumSizeHint() const
{
    return smallest;
}

void LBProgressBar::activateAnimation()
{
    update();
}

void LBProgressBar::runAnimator()
{
    if (m_animating && isVisible())
        m_animator.start();
    else
        m_animator.stop();
}

void LBProgressBar::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    runAnimator();
}

void LBProgressBar::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    runAnimator();
}

void LBProgressBar::paintEvent(QPaintEvent *)
{
    if (!m_displayedWhenStopped && !m_animating)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (!isEnabled())
        painter.setOpacity(palette::disabledOpacity);
    drawRect(painter);
}

QTransform LBProgressBar::toWidget() const
{
    if (layoutDirection() == Qt::RightToLeft)
        return {-1, 0, 0, -1, static_cast<qreal>(width()), static_cast<qreal>(height())};
    return {1, 0, 0, -1, 0, static_cast<qreal>(height())};
}

void LBProgressBar::drawRect(QPainter &painter)
{
    m_progressOffset = nextOffset(m_progressOffset);
    drawBezel(painter);
    if (m_doubleValue == 0)
        return;
    const float filled = fraction(m_doubleValue, m_minValue, m_maxValue);
    if (filled == 0 || !std::isfinite(filled))
        return;
    const QRectF bounds = progressRect(filled, size());
    if (bounds.isEmpty())
        return;
    drawProgressWithBounds(painter, bounds);
    drawStripesInBounds(painter, bounds);
    drawShadowInBounds(painter, bounds);
}

void LBProgressBar::drawBezel(QPainter &painter)
{
    const qreal ratio = painter.deviceTransform().m11();
    if (m_bezel.size() != pixelSize(size(), ratio) || m_bezel.devicePixelRatio() != ratio)
        m_bezel = drawnBezel(ratio);
    painter.drawPixmap(0, 0, m_bezel);
}

QPixmap LBProgressBar::drawnBezel(qreal devicePixelRatio) const
{
    QPixmap bezel(pixelSize(size(), devicePixelRatio));
    bezel.setDevicePixelRatio(devicePixelRatio);
    bezel.fill(Qt::transparent);
    QPainter painter(&bezel);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal w = width();
    const qreal h = height();
    const QTransform transform = toWidget();

    painter.save();
    painter.setClipRect(transform.mapRect(QRectF(0, h / 2, w, h / 2)));
    painter.setPen(palette::progressHighlight);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(transform.mapRect(QRectF(outlineInset, 0, w - 2 * outlineInset, h - 1)), cornerRadius,
                            cornerRadius);
    painter.restore();

    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::chromeText);
    painter.drawRoundedRect(transform.mapRect(QRectF(0, 0, w, h - 1)), cornerRadius, cornerRadius);

    // Invisible while its color is transparent.
    painter.setPen(palette::progressBase);
    painter.drawLine(transform.map(QLineF(cornerRadius, 0, w - cornerRadius, 0)));
    return bezel;
}

void LBProgressBar::drawProgressWithBounds(QPainter &painter, const QRectF &bounds) const
{
    painter.setBrush(m_lightColor);
    painter.drawRoundedRect(toWidget().mapRect(bounds), cornerRadius, cornerRadius);
}

void LBProgressBar::drawStripesInBounds(QPainter &painter, const QRectF &bounds)
{
    // A clip path has hard edges. Instead the stripes are painted into a picture, and the rounded shape is filled with
    // that picture, which keeps its edge smooth.
    const qreal ratio = painter.deviceTransform().m11();
    const QSize pixels = pixelSize(size(), ratio);
    if (m_stripes.size() != pixels)
        m_stripes = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
    m_stripes.fill(Qt::transparent);

    QPainter stripes(&m_stripes);
    stripes.setRenderHint(QPainter::Antialiasing);
    stripes.scale(ratio, ratio);
    stripes.setPen(Qt::NoPen);
    stripes.setBrush(m_darkColor);
    // One by one: the stripes do not touch, and many small shapes are painted several times faster than one path with
    // all of them.
    const QTransform transform = toWidget();
    const qint64 seen = static_cast<qint64>((width() + stripeReach) / stripePitch);
    for (qint64 k = 0; k < std::min(stripeCount(bounds.width()), seen); ++k)
        stripes.drawConvexPolygon(transform.map(stripe(k, m_progressOffset, bounds.height())));
    stripes.end();

    // In pixels, since a brush that need not be scaled is many times faster.
    const QRectF shape = toWidget().mapRect(bounds);
    painter.save();
    painter.scale(1 / ratio, 1 / ratio);
    painter.setBrush(m_stripes);
    painter.drawRoundedRect(QRectF(shape.topLeft() * ratio, shape.size() * ratio), cornerRadius * ratio,
                            cornerRadius * ratio);
    painter.restore();
}

void LBProgressBar::drawShadowInBounds(QPainter &painter, const QRectF &bounds) const
{
    // Invisible while its color is transparent.
    painter.setPen(palette::progressShadow);
    painter.drawLine(toWidget().map(QLineF(0, shadowHeight, bounds.width(), shadowHeight)));
    painter.setPen(Qt::NoPen);
}

} // namespace lumora
