// SPDX-License-Identifier: MIT
#pragma once

#include "PictureRecipe.h"
#include "TodaySources.h"
#include "foundation/LazyValue.h"

#include <QColor>
#include <QImage>

#include <optional>

namespace lumora
{

/// The style of the Mac's icons.
enum class MacForm { Body, FullBleed };

/// What the pictures of all sets show: each given source, or what is derived from the others. Each motif is made when
/// it is first needed, on any thread.
class Motifs
{
public:
    Motifs(TodaySources sources, MacForm macForm);

    const TodaySources &sources() const { return m_sources; }

    /// The motif `edge` pixels wide and high, as `QImage::Format_RGBA8888_Premultiplied`; null if there is none
    /// or if memory runs out.
    QImage at(Motif motif, int layer, int edge) const;

    /// Behind foregrounds, maskable icons and touch icons: the given color, else the color of the icon's uniform
    /// border, else white.
    QColor backgroundColor() const;
    bool hasBorderColor() const;

    /// Whether there is a shape: a given one, or that of the icon's opaque pixels.
    bool hasMonochrome() const;

    /// The largest edge length in pixels, at most `edge`, at which the whole icon fits into a circle in the middle of a
    /// picture `edge` pixels wide. `circle` is the diameter as a part of the picture's edge.
    int safeEdge(double circle, int edge) const;

private:
    const Artwork &monochromeSource() const;
    const std::optional<QColor> &border() const;
    QImage plainBackground(int edge) const;
    QImage roundIcon() const;
    QImage allLayers(int edge) const;

    TodaySources m_sources;
    MacForm m_macForm;
    mutable LazyValue<Artwork> m_mac;
    mutable LazyValue<Artwork> m_round;
    mutable LazyValue<double> m_extent;
    mutable LazyValue<std::optional<QColor>> m_border;
};

/// Draws a premultiplied picture over the middle of another one, cut off at its edges.
void drawInMiddle(QImage &ground, const QImage &picture);

} // namespace lumora
