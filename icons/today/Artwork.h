// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

#include <memory>

namespace lumora
{

class SvgDrawing;

/// A square source of icons: a picture, which is scaled, or an SVG drawing, which is drawn at the needed size. A value;
/// copies share their data.
class Artwork
{
public:
    /// No artwork.
    Artwork();
    /// A square picture.
    explicit Artwork(const QImage &picture);
    explicit Artwork(std::shared_ptr<const SvgDrawing> drawing);
    ~Artwork();
    Artwork(const Artwork &);
    Artwork &operator=(const Artwork &);

    bool isNull() const { return m_state == nullptr; }
    /// The SVG file that is drawn; empty for a picture.
    QByteArray svgFile() const;
    /// Whether every pixel is opaque.
    bool isOpaque() const;
    /// `edge` pixels wide and high, as `QImage::Format_RGBA8888_Premultiplied`; null if there is no artwork or
    /// if memory runs out. Callable on any thread.
    QImage at(int edge) const;

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace lumora
