// SPDX-License-Identifier: MIT
#include "Motifs.h"

#include "AndroidFigures.h"
#include "ContentExtent.h"
#include "MacBody.h"
#include "icons/IconCatalogue.h"
#include "pictures/RoundedCorners.h"
#include "pictures/pixels/PictureMemory.h"

#include <algorithm>

namespace lumora
{

namespace
{

/// The weights of red, green and blue in luminance, in parts of 10000.
constexpr int redShare = 2126;
constexpr int greenShare = 7152;
constexpr int blueShare = 722;

/// The number of pixels by which scaling may enlarge a contour.
constexpr int scalingSpread = 1;

/// Opaque gray, on black.
QImage luminance(QImage picture)
{
    takeOwnPixels(picture);
    for (int y = 0; y < picture.height(); ++y) {
        uchar *pixel = picture.scanLine(y);
        for (int x = 0; x < picture.width(); ++x, pixel += 4) {
            const int gray = (redShare * pixel[0] + greenShare * pixel[1] + blueShare * pixel[2] + 5000) / 10000;
            pixel[0] = pixel[1] = pixel[2] = static_cast<uchar>(gray);
            pixel[3] = 255;
        }
    }
    return picture;
}

/// White with the same transparency.
QImage whitened(QImage picture)
{
    takeOwnPixels(picture);
    for (int y = 0; y < picture.height(); ++y) {
        uchar *pixel = picture.scanLine(y);
        for (int x = 0; x < picture.width(); ++x, pixel += 4)
            pixel[0] = pixel[1] = pixel[2] = pixel[3];
    }
    return picture;
}

} // namespace

Motifs::Motifs(TodaySources sources, MacForm macForm) : m_sources(std::move(sources)), m_macForm(macForm) {}

QImage Motifs::at(Motif motif, int layer, int edge) const
{
    switch (motif) {
    case Motif::Icon:
        return m_sources.icon.at(edge);
    case Motif::Dark:
        return (m_sources.dark.isNull() ? m_sources.icon : m_sources.dark).at(edge);
    case Motif::Tinted:
        return luminance((m_sources.tinted.isNull() ? m_sources.icon : m_sources.tinted).at(edge));
    case Motif::MacBody:
        if (m_macForm == MacForm::FullBleed)
            return m_sources.icon.at(edge);
        return m_mac.get([this] { return Artwork(macBody(m_sources.icon, sourceIconSize)); }).at(edge);
    case Motif::Foreground:
        return (m_sources.foreground.isNull() ? m_sources.icon : m_sources.foreground).at(edge);
    case Motif::Background:
        return m_sources.background.isNull() ? plainBackground(edge) : m_sources.background.at(edge);
    case Motif::Monochrome:
        return whitened(monochromeSource().at(edge));
    case Motif::Round:
        return m_round.get([this] { return Artwork(roundIcon()); }).at(edge);
    case Motif::Layer:
        return layer < m_sources.layers.size() ? m_sources.layers[layer].at(edge) : QImage();
    case Motif::Layers:
        return allLayers(edge);
    }
    return {};
}

QColor Motifs::backgroundColor() const
{
    if (m_sources.backgroundColor)
        return *m_sources.backgroundColor;
    return border().value_or(QColor(Qt::white));
}

const std::optional<QColor> &Motifs::border() const
{
    return m_border.get([this] { return borderColor(m_sources.icon.at(sourceIconSize)); });
}

bool Motifs::hasBorderColor() const
{
    return border().has_value();
}

bool Motifs::hasMonochrome() const
{
    const Artwork &source = monochromeSource();
    return !source.isNull() && !source.isOpaque();
}

int Motifs::safeEdge(double circle, int edge) const
{
    const double extent = m_extent.get([this] { return contentDiameter(m_sources.icon.at(sourceIconSize)); });
    if (extent <= circle)
        return edge;
    return std::max(static_cast<int>(edge * circle / extent) - 2 * scalingSpread, 1);
}

const Artwork &Motifs::monochromeSource() const
{
    return m_sources.monochrome.isNull() ? m_sources.icon : m_sources.monochrome;
}

QImage Motifs::plainBackground(int edge) const
{
    QImage picture = newPicture(QSize(edge, edge), QImage::Format_RGBA8888_Premultiplied);
    picture.fill(backgroundColor());
    return picture;
}

QImage Motifs::roundIcon() const
{
    const int edge = sourceIconSize;
    const int layerEdge = edge * adaptiveLayerDp / adaptiveViewportDp;
    QImage picture = newPicture(QSize(edge, edge), QImage::Format_RGBA8888_Premultiplied);
    picture.fill(backgroundColor());
    if (!m_sources.background.isNull())
        drawInMiddle(picture, at(Motif::Background, 0, layerEdge));
    const int foregroundEdge =
        m_sources.foreground.isNull() ? safeEdge(double{adaptiveSafeDp} / adaptiveLayerDp, layerEdge) : layerEdge;
    drawInMiddle(picture, at(Motif::Foreground, 0, foregroundEdge));
    roundCorners(picture, static_cast<float>(edge) / 2);
    return picture;
}

QImage Motifs::allLayers(int edge) const
{
    QImage picture = newPicture(QSize(edge, edge), QImage::Format_RGBA8888_Premultiplied);
    picture.fill(Qt::transparent);
    for (const Artwork &layer : m_sources.layers)
        drawInMiddle(picture, layer.at(edge));
    return picture;
}

void drawInMiddle(QImage &ground, const QImage &picture)
{
    const int left = (ground.width() - picture.width()) / 2;
    const int top = (ground.height() - picture.height()) / 2;
    const int first = std::max(-left, 0);
    const int end = std::min(picture.width(), ground.width() - left);
    for (int y = std::max(-top, 0); y < std::min(picture.height(), ground.height() - top); ++y) {
        const uchar *from = picture.constScanLine(y) + 4 * first;
        uchar *to = ground.scanLine(y + top) + 4 * (left + first);
        for (int x = first; x < end; ++x, from += 4, to += 4) {
            const int through = 255 - from[3];
            for (int channel = 0; channel < 4; ++channel)
                to[channel] = static_cast<uchar>(from[channel] + (to[channel] * through + 127) / 255);
        }
    }
}

} // namespace lumora
