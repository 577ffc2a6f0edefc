// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

#include <memory>

namespace lumora
{

class SvgDrawing;

/// Something square that icons are made of: a picture, which is scaled, or a drawing, which is drawn in the size
/// needed. A value; copies share what they hold.
class Artwork
{
public:
    /// None.
    Artwork();
    /// A square picture.
    explicit Artwork(const QImage &picture);
    explicit Artwork(std::shared_ptr<const SvgDrawing> drawing);
    ~Artwork();
    Artwork(const Artwork &);
    Artwork &operator=(const Artwork &);

    bool isNull() const { return m_state == nullptr; }
    /// The SVG file it is drawn from; empty for a picture.
    QByteArray svgFile() const;
    /// Whether no pixel lets anything through.
    bool isOpaque() const;
    /// `edge` pixels wide and high, as `QImage::Format_RGBA8888_Premultiplied`; null for none and if memory
    /// runs out. Callable on any thread.
    QImage at(int edge) const;

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace lumora
