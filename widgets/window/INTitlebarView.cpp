// SPDX-License-Identifier: MIT
#include "INTitlebarView.h"

#include "INAppStoreWindow.h"
#include "TitleBarAppearance.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace lumora
{

namespace
{

const QPixmap &sharedNoise()
{
    static const QPixmap noise = noiseTexture();
    return noise;
}

QColor given(const QColor &color, float builtInGray)
{
    return color.isValid() ? color : opaqueGray(builtInGray);
}

} // namespace

INTitlebarView::INTitlebarView(QWidget *parent) : QWidget(parent) {}

const INAppStoreWindow *INTitlebarView::appStoreWindow() const
{
    return qobject_cast<const INAppStoreWindow *>(window());
}

bool INTitlebarView::drawsAsMainWindow() const
{
    const INAppStoreWindow *window = appStoreWindow();
    return window && window->isMainWindow();
}

QPainterPath INTitlebarView::clippingPath() const
{
    // Only the upper corners are round: the lower ones of the rounded rectangle are below the view.
    QPainterPath rounded;
    rounded.addRoundedRect(QRectF(rect()).adjusted(0, 0, 0, titleBarCornerRadius), titleBarCornerRadius,
                           titleBarCornerRadius);
    QPainterPath bar;
    bar.addRect(rect());
    return bar.intersected(rounded);
}

void INTitlebarView::paintEvent(QPaintEvent *)
{
    const INAppStoreWindow *window = appStoreWindow();
    if (!window)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (window->titleBarDrawingBlock()) {
        window->titleBarDrawingBlock()(&painter, drawsAsMainWindow(), rect(), clippingPath());
        return;
    }
    drawBackground(&painter, *window);
    if (window->showsBaselineSeparator())
        drawBaselineSeparator(&painter, *window);
    if (window->isFullScreen() ? window->showsTitleInFullscreen() : window->showsTitle())
        drawTitle(&painter, *window);
}

INTitlebarView::Background INTitlebarView::background(const INAppStoreWindow &window, qreal devicePixelRatio) const
{
    const bool main = drawsAsMainWindow();
    const TitleBarGrays grays = titleBarGrays(platformGeneration, main);
    const QColor top = main ? window.titleBarStartColor() : window.inactiveTitleBarStartColor();
    const QColor bottom = main ? window.titleBarEndColor() : window.inactiveTitleBarEndColor();
    Background result{given(top, grays.gradientTop), given(bottom, grays.gradientBottom), main, size(),
                      devicePixelRatio};
    if (window.isFullScreen())
        result.top = result.bottom = Qt::black;
    return result;
}

QPixmap INTitlebarView::drawn(const Background &background) const
{
    const QSizeF pixels = QSizeF(background.size) * background.devicePixelRatio;
    QPixmap pixmap(static_cast<int>(std::ceil(pixels.width())), static_cast<int>(std::ceil(pixels.height())));
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(background.devicePixelRatio, background.devicePixelRatio);
    painter.setClipPath(clippingPath());
    QLinearGradient gradient(0, 0, 0, background.size.height());
    gradient.setColorAt(0, background.top);
    gradient.setColorAt(1, background.bottom);
    painter.fillRect(rect(), gradient);
    if (platformGeneration == PlatformGeneration::Newer) {
        painter.fillRect(QRectF(0, 0, width(), 1), QColor::fromRgbF(1.0F, 1.0F, 1.0F, titleBarHighlightAlpha));
        if (background.main) {
            painter.setOpacity(titleBarNoiseOpacity);
            painter.drawTiledPixmap(rect(), sharedNoise());
        }
    }
    return pixmap;
}

void INTitlebarView::drawBackground(QPainter *painter, const INAppStoreWindow &window)
{
    const qreal ratio = painter->deviceTransform().m11();
    const Background wanted = background(window, ratio);
    if (m_drawn.isNull() || wanted != m_background) {
        m_drawn = drawn(wanted);
        m_background = wanted;
    }
    painter->save();
    // Drawn pixel by pixel at every scale.
    painter->scale(1 / ratio, 1 / ratio);
    painter->drawPixmap(0, 0, m_drawn);
    painter->restore();
}

void INTitlebarView::drawBaselineSeparator(QPainter *painter, const INAppStoreWindow &window) const
{
    const bool main = drawsAsMainWindow();
    const TitleBarGrays grays = titleBarGrays(platformGeneration, main);
    painter->fillRect(QRectF(0, height() - 1, width(), 1),
                      given(main ? window.baselineSeparatorColor() : window.inactiveBaselineSeparatorColor(),
                            grays.baselineSeparator));
}

void INTitlebarView::drawTitle(QPainter *painter, const INAppStoreWindow &window) const
{
    const bool main = drawsAsMainWindow();
    painter->setFont(window.titleFont());
    const QFontMetricsF metrics(window.titleFont(), this);
    const QSizeF wanted(std::ceil(metrics.horizontalAdvance(window.windowTitle())), metrics.height());
    const QRectF frame = window.titleFrame(wanted);
    const QString text = metrics.elidedText(window.windowTitle(), Qt::ElideRight, frame.width());
    const auto &shadow = main ? window.titleTextShadow() : window.inactiveTitleTextShadow();
    if (shadow) {
        painter->setPen(shadow->color);
        painter->drawText(frame.translated(shadow->offset), Qt::AlignCenter, text);
    }
    painter->setPen(main ? window.titleTextColor() : window.inactiveTitleTextColor());
    painter->drawText(frame, Qt::AlignCenter, text);
}

} // namespace lumora
