// SPDX-License-Identifier: MIT
#include "EdgeShades.h"

#include "ColorPlanes.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace lumora
{

namespace
{

/// Steps from one colour to the other. Rounding takes a pixel at most half of one from where the filter put it;
/// docs/performance.md says what it saves.
constexpr std::int64_t steps = 32;

/// How far from a pixel both colours of its edge are looked for: the filter makes of a sharp one no more than this.
constexpr int edgeHalfPixels = 3;

/// What rounding in the filter takes a channel from the straight way between two colours, in levels of 255.
constexpr int straying = 2;

/// Pixels that differ less from each of their four neighbours, in levels of 255, lie in a gradient or in one colour.
constexpr int leastContrast = 8;

/// Of the way between two colours, one part in so many is the most that the filter is taken to go beyond them: Lanczos
/// with three lobes goes up to 8 % beyond a straight edge and 17 % in a right-angled corner.
constexpr int largestOvershoot = 4;

/// A level of 255 in samples of that width.
template <typename Sample> constexpr int level = sizeof(Sample) == 1 ? 1 : 257;

/// Colours among which a pixel may lie; where more than these meet they are those found first.
constexpr std::size_t mostColours = 4;

/// Of a packed colour.
constexpr int bitsOfSample = 16;

/// Areas that matter to a pixel are met where no more than so many blocks a side are looked at.
int stepWithin(Stretch seen)
{
    constexpr int blocksTried = 4;
    return (seen.last - seen.first + blocksTried - 1) / blocksTried;
}

/// A block tells of the pixel to its right, too, and the picture's own edges are smoothed over a pixel or two.
constexpr int widthOfEdges = 2;

std::vector<Stretch> widened(std::vector<Stretch> stretches, int pixels)
{
    for (Stretch &stretch : stretches)
        stretch = {std::max(stretch.first - widthOfEdges, 0), std::min(stretch.last + widthOfEdges, pixels - 1)};
    return stretches;
}

std::int64_t dividedToNearest(std::int64_t number, std::int64_t by)
{
    const std::int64_t doubled = 2 * number + by;
    const std::int64_t quotient = doubled / (2 * by);
    return doubled % (2 * by) < 0 ? quotient - 1 : quotient;
}

} // namespace

template <typename Sample>
EdgeShades<Sample>::EdgeShades(const ColorPlanes &picture, const std::vector<std::uint8_t> &uneven, QSize scaled)
    : m_picture(picture), m_uneven(uneven), m_blocks(picture.size().width() - 1),
      m_columns(widened(stretchesSeen(scaled.width(), picture.size().width(), edgeHalfPixels), picture.size().width())),
      m_rows(widened(stretchesSeen(scaled.height(), picture.size().height(), edgeHalfPixels), picture.size().height())),
      m_contrast(m_columns.size())
{
    m_colours.reserve(mostColours);
}

template <typename Sample> void EdgeShades<Sample>::roundIn(ColorPlanes &scaled)
{
    for (int row = 0; row < scaled.size().height(); ++row) {
        findContrast(scaled, row);
        auto at = m_contrast.cbegin();
        while ((at = std::find(at, m_contrast.cend(), std::uint8_t{1})) != m_contrast.cend()) {
            round(scaled, row, static_cast<int>(at - m_contrast.cbegin()));
            ++at;
        }
    }
}

template <typename Sample> void EdgeShades<Sample>::findContrast(const ColorPlanes &scaled, int row)
{
    std::fill(m_contrast.begin(), m_contrast.end(), std::uint8_t{0});
    const int width = scaled.size().width();
    const int last = scaled.size().height() - 1;
    std::uint8_t *const contrast = m_contrast.data();
    const auto differ = [](Sample one, Sample other) {
        const auto difference = static_cast<Sample>(std::max(one, other) - std::min(one, other));
        return static_cast<std::uint8_t>(difference >= static_cast<Sample>(leastContrast * level<Sample>));
    };
    for (int channel = 0; channel < scaled.channels(); ++channel) {
        const Sample *own = scaled.row<Sample>(channel, row);
        const Sample *above = scaled.row<Sample>(channel, std::max(row - 1, 0));
        const Sample *below = scaled.row<Sample>(channel, std::min(row + 1, last));
        for (int x = 0; x < width; ++x)
            contrast[x] |= differ(own[x], above[x]) | differ(own[x], below[x]);
        for (int x = 1; x < width; ++x)
            contrast[x] |= differ(own[x], own[x - 1]);
        for (int x = 1; x < width; ++x)
            contrast[x - 1] |= differ(own[x - 1], own[x]);
    }
}

template <typename Sample> void EdgeShades<Sample>::findColours(Stretch columns, Stretch rows)
{
    m_colours.clear();
    const int toNextColumn = stepWithin(columns);
    const int toNextRow = stepWithin(rows);
    for (int y = rows.first; y < rows.last; y += toNextRow) {
        const std::uint8_t *uneven = m_uneven.data() + std::ptrdiff_t{y} * m_blocks;
        for (int x = columns.first; x < columns.last; x += toNextColumn) {
            if (uneven[x] != 0)
                continue;
            const std::uint64_t colour = packedAt(m_picture, x, y);
            if (std::find(m_colours.cbegin(), m_colours.cend(), colour) != m_colours.cend())
                continue;
            m_colours.push_back(colour);
            if (m_colours.size() == mostColours)
                return;
        }
    }
}

template <typename Sample> void EdgeShades<Sample>::round(ColorPlanes &scaled, int row, int column)
{
    const Stretch columns = m_columns[static_cast<std::size_t>(column)];
    const Stretch rows = m_rows[static_cast<std::size_t>(row)];
    const std::uint64_t packed = packedAt(scaled, column, row);
    // Beside an edge, and of one of its two colours already.
    if (packed == packedAt(m_picture, (columns.first + columns.last) / 2, (rows.first + rows.last) / 2))
        return;
    findColours(columns, rows);
    if (m_colours.size() < 2)
        return;
    const Colour own = unpacked(packed);
    std::optional<Colour> best;
    int leastError = 0;
    for (std::size_t one = 0; one < m_colours.size(); ++one) {
        for (std::size_t other = one + 1; other < m_colours.size(); ++other) {
            const std::optional<Colour> shade = shadeBetween(unpacked(m_colours[one]), unpacked(m_colours[other]), own);
            if (!shade)
                continue;
            int error = 0;
            for (std::size_t channel = 0; channel < own.size(); ++channel)
                error = std::max(error, std::abs((*shade)[channel] - own[channel]));
            if (!best || error < leastError) {
                best = shade;
                leastError = error;
            }
        }
    }
    if (!best && m_colours.size() == 2) {
        const Colour one = unpacked(m_colours.front());
        const Colour other = unpacked(m_colours.back());
        if (const std::optional<Colour> kept = withoutOvershoot(own, one, other, columns, rows))
            best = shadeBetween(one, other, *kept);
    }
    if (!best)
        return;
    for (int channel = 0; channel < scaled.channels(); ++channel)
        scaled.row<Sample>(channel, row)[column] = static_cast<Sample>((*best)[static_cast<std::size_t>(channel)]);
}

template <typename Sample>
auto EdgeShades<Sample>::shadeBetween(const Colour &one, const Colour &other, const Colour &own) const
    -> std::optional<Colour>
{
    std::int64_t along = 0;
    std::int64_t length = 0;
    std::int64_t span = 0;
    for (std::size_t channel = 0; channel < own.size(); ++channel) {
        const std::int64_t way = other[channel] - one[channel];
        along += way * (own[channel] - one[channel]);
        length += way * way;
        span = std::max(span, std::abs(way));
    }
    const std::int64_t step = std::clamp<std::int64_t>(dividedToNearest(steps * along, length), 0, steps);
    Colour shade{};
    for (std::size_t channel = 0; channel < own.size(); ++channel) {
        const std::int64_t way = other[channel] - one[channel];
        shade[channel] = one[channel] + static_cast<int>(dividedToNearest(step * way, steps));
        const std::int64_t error = std::abs(shade[channel] - own[channel]);
        if (2 * steps * (error - straying * level<Sample>) > span)
            return {};
    }
    return shade;
}

template <typename Sample>
auto EdgeShades<Sample>::withoutOvershoot(const Colour &own, const Colour &one, const Colour &other, Stretch columns,
                                          Stretch rows) const -> std::optional<Colour>
{
    int beyond = 0;
    int span = 0;
    Colour kept{};
    for (std::size_t channel = 0; channel < own.size(); ++channel) {
        const auto [least, most] = std::minmax(one[channel], other[channel]);
        kept[channel] = std::clamp(own[channel], least, most);
        beyond = std::max(beyond, std::abs(own[channel] - kept[channel]));
        span = std::max(span, most - least);
    }
    if (beyond == 0 || beyond * largestOvershoot > span)
        return {};
    for (int channel = 0; channel < m_picture.channels(); ++channel) {
        const auto at = static_cast<std::size_t>(channel);
        if (own[at] != kept[at] && occursBeyond(channel, kept[at], own[at] > kept[at], columns, rows))
            return {};
    }
    return kept;
}

template <typename Sample>
bool EdgeShades<Sample>::occursBeyond(int channel, int limit, bool above, Stretch columns, Stretch rows) const
{
    for (int y = rows.first; y <= rows.last; ++y) {
        const Sample *row = m_picture.row<Sample>(channel, y);
        const auto isBeyond = [limit, above](Sample sample) { return above ? sample > limit : sample < limit; };
        if (std::any_of(row + columns.first, row + columns.last + 1, isBeyond))
            return true;
    }
    return false;
}

template <typename Sample> std::uint64_t EdgeShades<Sample>::packedAt(const ColorPlanes &planes, int column, int row)
{
    std::uint64_t packed = 0;
    for (int channel = 0; channel < planes.channels(); ++channel)
        packed |= std::uint64_t{planes.row<Sample>(channel, row)[column]} << (bitsOfSample * channel);
    return packed;
}

template <typename Sample> auto EdgeShades<Sample>::unpacked(std::uint64_t packed) -> Colour
{
    Colour colour{};
    for (int &sample : colour) {
        sample = static_cast<Sample>(packed);
        packed >>= bitsOfSample;
    }
    return colour;
}

template class EdgeShades<std::uint8_t>;
template class EdgeShades<std::uint16_t>;

} // namespace lumora
