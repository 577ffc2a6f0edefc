// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QSize>

#include <cstdint>
#include <cstdlib>
#include <memory>

struct zimg_filter_graph;

namespace lumora
{

/// The depth of a color plane's samples; the number is in bytes.
enum class SampleDepth : int { Bits8 = 1, Bits16 = 2 };

struct FreeAlignedMemory
{
    void operator()(void *memory) const { std::free(memory); }
};
/// Memory aligned for planes.
using AlignedBytes = std::unique_ptr<std::uint8_t, FreeAlignedMemory>;

/// The alignment of planes and their rows, in bytes.
inline constexpr qsizetype planeAlignment = 64;

/// Memory for planes and for libzimg, with some more behind it that may be read. Throws `std::bad_alloc` if memory runs
/// out.
AlignedBytes alignedBytes(std::size_t count);

/// The distance from one row of a plane to the next, in bytes.
qsizetype planeStride(int width, SampleDepth depth);

/// Scales single color planes from one size to another: Lanczos with three lobes, by libzimg. Samples use the whole
/// range of their depth. One thread at a time may use a scaler.
class PlaneScaler
{
public:
    /// Neither size is empty.
    PlaneScaler(QSize from, QSize to, SampleDepth depth);
    ~PlaneScaler();
    PlaneScaler(const PlaneScaler &) = delete;
    PlaneScaler &operator=(const PlaneScaler &) = delete;

    /// The calling thread's scaler for these sizes: one of the last few is used again, since batches come in few sizes
    /// and a new scaler computes a sine for every weight.
    static std::shared_ptr<const PlaneScaler> kept(QSize from, QSize to, SampleDepth depth);

    /// Both planes are aligned and have the stride of `planeStride`. Fails with `TooLarge` and libzimg's reason if that
    /// refuses the sizes; the caller adds the subject.
    Outcome scale(const std::uint8_t *from, std::uint8_t *to) const;

private:
    struct FreeGraph
    {
        void operator()(zimg_filter_graph *graph) const;
    };
    std::unique_ptr<zimg_filter_graph, FreeGraph> m_graph;
    AlignedBytes m_scratch;
    Outcome m_made = Done{};
    qsizetype m_fromStride;
    qsizetype m_toStride;
};

} // namespace lumora
