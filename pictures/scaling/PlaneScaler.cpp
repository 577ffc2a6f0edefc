// SPDX-License-Identifier: MIT
#include "PlaneScaler.h"

#include "foundation/ThreadValue.h"

#include <zimg.h>

#include <algorithm>
#include <array>
#include <deque>
#include <new>

namespace lumora
{

namespace
{

zimg_image_format grayPlane(QSize size, SampleDepth depth)
{
    zimg_image_format format;
    zimg_image_format_default(&format, ZIMG_API_VERSION);
    format.width = static_cast<unsigned>(size.width());
    format.height = static_cast<unsigned>(size.height());
    format.pixel_type = depth == SampleDepth::Bits8 ? ZIMG_PIXEL_BYTE : ZIMG_PIXEL_WORD;
    format.depth = static_cast<unsigned>(depth) * 8;
    format.pixel_range = ZIMG_RANGE_FULL;
    format.color_family = ZIMG_COLOR_GREY;
    return format;
}

zimg_filter_graph *lanczosGraph(QSize from, QSize to, SampleDepth depth)
{
    const zimg_image_format source = grayPlane(from, depth);
    const zimg_image_format destination = grayPlane(to, depth);
    zimg_graph_builder_params parameters;
    zimg_graph_builder_params_default(&parameters, ZIMG_API_VERSION);
    parameters.resample_filter = ZIMG_RESIZE_LANCZOS;
    parameters.filter_param_a = 3;
    parameters.dither_type = ZIMG_DITHER_NONE;
    return zimg_filter_graph_build(&source, &destination, &parameters);
}

/// What libzimg refused last on this thread.
Failure refusal()
{
    std::array<char, 256> reason{};
    zimg_get_last_error(reason.data(), reason.size());
    return {FailureCode::TooLarge, {}, QString::fromLatin1(reason.data())};
}

/// A scaler and the sizes it was made for.
struct KeptScaler
{
    QSize from;
    QSize to;
    SampleDepth depth;
    std::shared_ptr<const PlaneScaler> scaler;
};

/// libzimg reads that far behind planes and its own scratch memory, without using what it reads: at most 32 bytes over
/// 2,790 pairs of sizes with 16-bit samples on AVX2, none elsewhere.
constexpr std::size_t readAhead = planeAlignment;

/// The number of scalers kept for each thread; each takes about 100 KB.
constexpr std::size_t mostScalersKept = 8;

} // namespace

AlignedBytes alignedBytes(std::size_t count)
{
    const std::size_t rounded = (count + planeAlignment - 1) / planeAlignment * planeAlignment;
    void *memory = std::aligned_alloc(planeAlignment, rounded + readAhead);
    if (memory == nullptr)
        throw std::bad_alloc();
    return AlignedBytes(static_cast<std::uint8_t *>(memory));
}

qsizetype planeStride(int width, SampleDepth depth)
{
    const qsizetype bytes = qsizetype{width} * static_cast<int>(depth);
    return (bytes + planeAlignment - 1) / planeAlignment * planeAlignment;
}

void PlaneScaler::FreeGraph::operator()(zimg_filter_graph *graph) const
{
    zimg_filter_graph_free(graph);
}

PlaneScaler::PlaneScaler(QSize from, QSize to, SampleDepth depth)
    : m_graph(lanczosGraph(from, to, depth)), m_fromStride(planeStride(from.width(), depth)),
      m_toStride(planeStride(to.width(), depth))
{
    std::size_t scratchBytes = 0;
    if (m_graph != nullptr && zimg_filter_graph_get_tmp_size(m_graph.get(), &scratchBytes) == ZIMG_ERROR_SUCCESS)
        m_scratch = alignedBytes(scratchBytes);
    else
        m_made = refusal();
}

PlaneScaler::~PlaneScaler() = default;

std::shared_ptr<const PlaneScaler> PlaneScaler::kept(QSize from, QSize to, SampleDepth depth)
{
    static ThreadValue<std::deque<KeptScaler>> keptScalers;
    std::deque<KeptScaler> &scalers = keptScalers.get();
    const auto found = std::find_if(scalers.cbegin(), scalers.cend(), [&](const KeptScaler &kept) {
        return kept.from == from && kept.to == to && kept.depth == depth;
    });
    if (found != scalers.cend())
        return found->scaler;
    auto scaler = std::make_shared<const PlaneScaler>(from, to, depth);
    if (scalers.size() == mostScalersKept)
        scalers.pop_front();
    scalers.push_back({from, to, depth, scaler});
    return scaler;
}

Outcome PlaneScaler::scale(const std::uint8_t *from, std::uint8_t *to) const
{
    if (!m_made)
        return m_made;
    zimg_image_buffer_const source{};
    source.version = ZIMG_API_VERSION;
    source.plane[0] = {from, static_cast<ptrdiff_t>(m_fromStride), ZIMG_BUFFER_MAX};
    zimg_image_buffer target{};
    target.version = ZIMG_API_VERSION;
    target.plane[0] = {to, static_cast<ptrdiff_t>(m_toStride), ZIMG_BUFFER_MAX};
    const zimg_error_code_e error =
        zimg_filter_graph_process(m_graph.get(), &source, &target, m_scratch.get(), nullptr, nullptr, nullptr, nullptr);
    return error == ZIMG_ERROR_SUCCESS ? Outcome(Done{}) : refusal();
}

} // namespace lumora
