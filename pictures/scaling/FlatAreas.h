// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

#include <cstdint>
#include <vector>

namespace lumora
{

class ColorPlanes;

/// Where a picture keeps to one colour. A filter with lobes leaves faint ripples up to three pixels beside every edge:
/// unseen in a photograph, but a halo around the shapes of a drawing, which also costs most of its file. So, of the
/// pixels of the scaled picture,
///
/// - one that lies in a single colour with all that the filter's middle lobe sees gets exactly that colour;
/// - one that only itself lies in a single colour, beside an edge or a fine line, stays between the colours that the
///   middle lobe sees, so that a line keeps its weight and an edge its smoothness but nothing overshoots;
/// - every other one stays as the filter made it.
///
/// A photograph, where next to nothing is of one colour, stays as the filter made it altogether.
class FlatAreas
{
public:
    /// Keeps a reference to the picture.
    explicit FlatAreas(const ColorPlanes &picture);

    /// Mends `scaled`, which is the picture in another size. Where nothing is flat nothing changes.
    void restoreIn(ColorPlanes &scaled) const;

    /// Rounds the shades along the edges between flat areas in a mended `scaled`; see `EdgeShades`. Not for what is
    /// scaled further.
    void roundEdgesIn(ColorPlanes &scaled) const;

private:
    template <typename Sample> void findAreas();
    template <typename Sample> void findUneven(int row, std::uint8_t *uneven) const;
    template <typename Sample> bool isPhotograph() const;
    template <typename Sample> void restoreSamples(ColorPlanes &scaled) const;

    const ColorPlanes &m_picture;
    /// Two by two pixels make a block, which is counted by the upper left of them.
    QSize m_blocks;
    /// 0 for each block of a single colour.
    std::vector<std::uint8_t> m_uneven;
};

} // namespace lumora
