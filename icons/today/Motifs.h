// SPDX-License-Identifier: MIT
#pragma once

#include "PictureRecipe.h"
#include "TodaySources.h"

#include <QColor>
#include <QImage>

#include <mutex>

namespace lumora
{

/// How the Mac's icons are made.
enum class MacForm { Body, FullBleed };

/// What the pictures of all sets show, derived from the sources as far as it was not given. Made when it is first asked
/// for, on any thread.
class Motifs
{
public:
    Motifs(TodaySources sources, MacForm macForm);

    const TodaySources &sources() const { return m_sources; }

    /// The motif `edge` pixels wide and high, as `QImage::Format_RGBA8888_Premultiplied`; null where there is none
    /// and if memory runs out.
    QImage at(Motif motif, int layer, int edge) const;

    /// Behind foregrounds, maskable and touch icons: the one given, else the color of the icon's own border where it
    /// has one, else white.
    QColor backgroundColor() const;
    bool hasBorderColor() const;

    /// Whether there is a shape to be had: given, or by the icon's own transparency.
    bool hasMonochrome() const;

    /// The edge length in pixels at which all of the icon lies within a circle in the middle of a picture that is
    /// `edge` pixels wide, at most that; `circle` is the diameter in parts of the picture's edge.
    int safeEdge(double circle, int edge) const;

private:
    const Artwork &monochromeSource() const;
    QImage roundIcon() const;
    QImage allLayers(int edge) const;

    TodaySources m_sources;
    MacForm m_macForm;
    mutable std::once_flag m_macMade;
    mutable Artwork m_mac;
    mutable std::once_flag m_roundMade;
    mutable Artwork m_round;
    mutable std::once_flag m_extentFound;
    mutable double m_extent = 0;
    mutable std::once_flag m_borderFound;
    mutable std::optional<QColor> m_border;
};

/// Puts a premultiplied picture in the middle of another, upon what is there; what reaches beyond is cut off.
void drawInMiddle(QImage &ground, const QImage &picture);

} // namespace lumora
