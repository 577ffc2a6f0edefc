// SPDX-License-Identifier: MIT
#include "Artwork.h"

#include "foundation/LazyValue.h"
#include "icons/IconCatalogue.h"
#include "pictures/pixels/PixelFormat.h"
#include "pictures/scaling/PicturePlanes.h"
#include "pictures/scaling/Resampler.h"
#include "pictures/svg/SvgDrawing.h"

#include <memory>

namespace lumora
{

struct Artwork::State
{
    QImage picture;                            ///< null for a drawing that is drawn again for every size
    std::shared_ptr<const SvgDrawing> drawing; ///< none for a picture
    LazyValue<std::unique_ptr<Resampler>> resampler;
    LazyValue<bool> opaque;
};

Artwork::Artwork() = default;

Artwork::Artwork(const QImage &picture)
{
    if (picture.isNull())
        return;
    m_state = std::make_shared<State>();
    m_state->picture = premultiplied(picture);
}

Artwork::Artwork(std::shared_ptr<const SvgDrawing> drawing) : m_state(std::make_shared<State>())
{
    if (drawing->isHeavy())
        m_state->picture = drawing->at(sourceIconSize);
    m_state->drawing = std::move(drawing);
}

Artwork::~Artwork() = default;

Artwork::Artwork(const Artwork &) = default;

Artwork &Artwork::operator=(const Artwork &) = default;

QByteArray Artwork::svgFile() const
{
    return m_state && m_state->drawing ? m_state->drawing->file() : QByteArray();
}

bool Artwork::isOpaque() const
{
    if (!m_state)
        return false;
    return m_state->opaque.get([this] { return lumora::isOpaque(at(sourceIconSize)); });
}

QImage Artwork::at(int edge) const
{
    if (!m_state)
        return {};
    if (m_state->picture.isNull())
        return m_state->drawing->at(edge);
    const QSize size(edge, edge);
    if (m_state->picture.size() == size)
        return m_state->picture;
    const auto &resampler =
        m_state->resampler.get([this] { return std::make_unique<Resampler>(m_state->picture, QString()); });
    Result<QImage> scaled = resampler->scaledTo(size);
    return scaled ? std::move(scaled).value() : QImage();
}

} // namespace lumora
