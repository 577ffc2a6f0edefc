// SPDX-License-Identifier: MIT
#include "IconPreviews.h"

#include "icons/today/AndroidFigures.h"
#include "icons/today/IconMasks.h"
#include "icons/today/MacBody.h"
#include "icons/today/Motifs.h"
#include "icons/today/SetPlans.h"
#include "icons/today/WebFigures.h"
#include "pictures/RoundedCorners.h"
#include "pictures/pixels/PictureMemory.h"

#include <QPainter>

#include <cmath>
#include <future>

namespace lumora
{

namespace
{

/// Below a dark icon that lets something through, as iOS draws it.
const QColor darkTop(0x31, 0x31, 0x31);
const QColor darkBottom(0x14, 0x14, 0x14);
/// One of the tints that a user may choose.
const QColor exampleTint(0x5A, 0xB4, 0xFF);
/// Of a monochrome icon on a light pane.
const QColor shapeColor(0x34, 0x49, 0x5E);

QImage blank(int edge, const QColor &color = Qt::transparent)
{
    QImage picture = newPicture(QSize(edge, edge), QImage::Format_RGBA8888_Premultiplied);
    picture.fill(color);
    return picture;
}

QImage roundedAsOnIos(QImage picture)
{
    roundCorners(picture, cornerRadius(picture.width(), CornerMode::Ios7));
    return picture;
}

QImage onDark(const QImage &icon)
{
    QImage picture = blank(icon.width());
    QPainter painter(&picture);
    QLinearGradient gradient(0, 0, 0, icon.height());
    gradient.setColorAt(0, darkTop);
    gradient.setColorAt(1, darkBottom);
    painter.fillRect(picture.rect(), gradient);
    painter.drawImage(0, 0, icon);
    return picture;
}

/// What the system makes of the shades of gray.
QImage tinted(const QImage &gray)
{
    QImage picture = gray;
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    painter.fillRect(picture.rect(), exampleTint);
    return picture;
}

QImage shape(const QImage &white)
{
    QImage picture = white;
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), shapeColor);
    return picture;
}

/// The part of the picture inside the outline.
QImage cut(const QImage &picture, const QPainterPath &outline)
{
    QImage result = blank(picture.width());
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(outline, Qt::white);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.drawImage(0, 0, picture);
    return result;
}

/// Foreground upon background, as large as what the masks may show of the layers.
QImage adaptiveIcon(const Motifs &motifs, int edge)
{
    const int layerEdge = edge * adaptiveLayerDp / adaptiveViewportDp;
    QImage picture = blank(edge, motifs.backgroundColor());
    if (!motifs.sources().background.isNull())
        drawInMiddle(picture, motifs.at(Motif::Background, 0, layerEdge));
    FilePlan unused;
    drawInMiddle(picture,
                 motifs.at(Motif::Foreground, 0, adaptiveLayer(motifs, Motif::Foreground, layerEdge, unused).edge));
    return picture;
}

QRectF partsOf(const QRectF &zone, qreal edge)
{
    return {zone.x() / edge, zone.y() / edge, zone.width() / edge, zone.height() / edge};
}

/// The circle's square in parts of what the masks may show.
QRectF adaptiveZone()
{
    const QRectF layer(0, 0, adaptiveLayerDp, adaptiveLayerDp);
    const QRectF viewport = adaptiveViewport(layer);
    return partsOf(adaptiveSafeZone(layer).translated(-viewport.topLeft()), viewport.width());
}

class Drawing
{
public:
    Drawing(const Motifs &motifs, int placeEdge, int sourceEdge)
        : m_motifs(motifs), m_edge(placeEdge), m_sourceEdge(sourceEdge)
    {
    }

    IconPreviews draw() const
    {
        // The Mac's shadow takes as long as all the rest.
        std::future<QImage> mac = std::async(std::launch::async, [this] { return macIcon(); });
        IconPreviews previews;
        addIos(previews);
        addAndroid(previews);
        previews.places.push_back({PreviewPlace::Mac, {}, {}, false});
        addWeb(previews);
        for (const FurtherSource source : furtherSources)
            previews.sources.push_back(sourcePreview(source));
        previews.places[static_cast<std::size_t>(PreviewPlace::Mac)].picture = mac.get();
        return previews;
    }

private:
    const TodaySources &sources() const { return m_motifs.sources(); }

    QImage lightIcon() const
    {
        const QImage icon = m_motifs.at(Motif::Icon, 0, m_edge);
        if (!sources().flatten)
            return icon;
        QImage picture = blank(m_edge, *sources().flatten);
        drawInMiddle(picture, icon);
        return picture;
    }

    void addIos(IconPreviews &previews) const
    {
        const bool hasDark = hasDarkIcon(m_motifs);
        previews.places.push_back({PreviewPlace::IosLight, roundedAsOnIos(lightIcon()), {}, false});
        previews.places.push_back(
            {PreviewPlace::IosDark, roundedAsOnIos(onDark(m_motifs.at(Motif::Dark, 0, m_edge))), {}, !hasDark});
        previews.places.push_back(
            {PreviewPlace::IosTinted, roundedAsOnIos(tinted(m_motifs.at(Motif::Tinted, 0, m_edge))), {}, false});
    }

    void addAndroid(IconPreviews &previews) const
    {
        const QImage icon = adaptiveIcon(m_motifs, m_edge);
        for (std::size_t mask = 0; mask < androidMasks.size(); ++mask) {
            const auto place = static_cast<PreviewPlace>(static_cast<std::size_t>(PreviewPlace::AndroidCircle) + mask);
            previews.places.push_back(
                {place, cut(icon, maskOutline(androidMasks[mask], icon.rect())), adaptiveZone(), false});
        }
    }

    void addWeb(IconPreviews &previews) const
    {
        FilePlan unused;
        QImage picture = blank(m_edge, m_motifs.backgroundColor());
        drawInMiddle(picture, m_motifs.at(Motif::Icon, 0, maskableIcon(m_motifs, m_edge, unused).edge));
        previews.places.push_back({PreviewPlace::WebMaskable,
                                   cut(picture, maskOutline(AndroidMask::RoundedSquare, picture.rect())),
                                   maskableSafeZone({0, 0, 1, 1}), false});
    }

    /// The body with its margin and its shadow.
    QImage macIcon() const { return Artwork(macBody(sources().icon, 2 * m_edge)).at(m_edge); }

    SourcePreview sourcePreview(FurtherSource source) const
    {
        const int edge = m_sourceEdge;
        switch (source) {
        case FurtherSource::Dark:
            return {source, hasDarkIcon(m_motifs) ? onDark(m_motifs.at(Motif::Dark, 0, edge)) : QImage(),
                    !sources().dark.isNull()};
        case FurtherSource::Tinted:
            return {source, m_motifs.at(Motif::Tinted, 0, edge), !sources().tinted.isNull()};
        case FurtherSource::Monochrome:
            return {source, m_motifs.hasMonochrome() ? shape(m_motifs.at(Motif::Monochrome, 0, edge)) : QImage(),
                    !sources().monochrome.isNull()};
        case FurtherSource::Foreground: {
            FilePlan unused;
            QImage picture = blank(edge);
            drawInMiddle(picture, m_motifs.at(Motif::Foreground, 0,
                                              adaptiveLayer(m_motifs, Motif::Foreground, edge, unused).edge));
            return {source, picture, !sources().foreground.isNull()};
        }
        case FurtherSource::Background:
            break;
        }
        const bool isPicture = !sources().background.isNull();
        return {source, isPicture ? m_motifs.at(Motif::Background, 0, edge) : blank(edge, m_motifs.backgroundColor()),
                isPicture || sources().backgroundColor.has_value()};
    }

    const Motifs &m_motifs;
    int m_edge;
    int m_sourceEdge;
};

} // namespace

IconPreviews iconPreviews(const Motifs &motifs, int placeEdge, int sourceEdge)
{
    return Drawing(motifs, placeEdge, sourceEdge).draw();
}

} // namespace lumora
