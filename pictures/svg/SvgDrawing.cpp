// SPDX-License-Identifier: MIT
#include "SvgDrawing.h"

#include "SvgEffort.h"
#include "SvgInspection.h"
#include "pictures/pixels/PictureMemory.h"
#include "pictures/pixels/PixelFormat.h"

#include <QPainter>
#include <QSvgRenderer>

#include <cmath>
#include <mutex>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// A picture of 1024 pixels painted over as often takes about half a second.
constexpr double mostCoverage = 250;
constexpr double heavyCoverage = 25;
constexpr double mostPoints = 400'000;
constexpr double heavyPoints = 40'000;

/// The edges may differ by what rounding leaves of them.
constexpr double squareTolerance = 0.001;

/// Whether the proportions differ by more than what rounding to whole points makes of them.
bool isOfOtherShape(const QSizeF &viewBox, const QSizeF &rounded)
{
    const double height = rounded.width() * viewBox.height() / viewBox.width();
    const double width = rounded.height() * viewBox.width() / viewBox.height();
    return std::abs(height - rounded.height()) > 1 && std::abs(width - rounded.width()) > 1;
}

} // namespace

class SvgDrawing::Private
{
public:
    explicit Private(const QByteArray &bytes) : file(bytes) {}

    QByteArray file;
    QStringList notDrawn;
    bool heavy = false;
    QSize size; ///< in points
    QSvgRenderer renderer;
    std::mutex mutex; ///< the renderer changes while it draws
};

SvgDrawing::SvgDrawing(std::unique_ptr<Private> state) : m_state(std::move(state)) {}

SvgDrawing::~SvgDrawing() = default;

Result<std::shared_ptr<const SvgDrawing>> SvgDrawing::read(const QByteArray &bytes, const QString &name, SvgShape shape)
{
    const Result<SvgInspection> inspection = inspectSvg(bytes, name);
    if (!inspection)
        return inspection.failure();
    auto state = std::make_unique<Private>(bytes);
    state->notDrawn = inspection.value().notDrawn;
    if (!state->renderer.load(bytes))
        return Failure{FailureCode::NotReadable, name, "DETAIL_NO_SVG"};
    const QSizeF size = state->renderer.viewBoxF().size();
    if (!(size.width() > 0) || !(size.height() > 0) || !std::isfinite(size.width() * size.height()))
        return Failure{FailureCode::NotReadable, name, "DETAIL_SVG_NO_SIZE"};
    if (shape == SvgShape::Square && std::abs(size.width() / size.height() - 1) > squareTolerance)
        return Failure{FailureCode::WrongSize,
                       name,
                       {"DETAIL_SVG_NOT_SQUARE",
                        {{"[WIDTH]", QString::number(size.width())}, {"[HEIGHT]", QString::number(size.height())}}}};
    state->size = state->renderer.defaultSize().expandedTo({1, 1});
    // Where the file's own size has other proportions than its view box, the drawing sits in the middle.
    if (shape == SvgShape::Any && isOfOtherShape(size, state->size))
        state->renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    const SvgEffort effort = svgEffort(state->renderer);
    if (effort.coverage > mostCoverage || effort.points > mostPoints) {
        return Failure{FailureCode::TooLarge, name, "DETAIL_SVG_TOO_MUCH"};
    }
    state->heavy = effort.coverage > heavyCoverage || effort.points > heavyPoints;
    return std::shared_ptr<const SvgDrawing>(new SvgDrawing(std::move(state)));
}

QSize SvgDrawing::size() const
{
    return m_state->size;
}

QImage SvgDrawing::at(QSize pixels) const
{
    if (pixels.isEmpty() || qint64{pixels.width()} * pixels.height() > largestArea)
        return {};
    QImage picture = newPicture(pixels, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    {
        const std::scoped_lock lock(m_state->mutex);
        QPainter painter(&picture);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        m_state->renderer.render(&painter, QRectF(QPointF(), pixels));
    }
    return premultiplied(std::move(picture));
}

bool SvgDrawing::isHeavy() const
{
    return m_state->heavy;
}

const QByteArray &SvgDrawing::file() const
{
    return m_state->file;
}

const QStringList &SvgDrawing::notDrawn() const
{
    return m_state->notDrawn;
}

} // namespace lumora
