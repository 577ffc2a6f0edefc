// SPDX-License-Identifier: MIT
#include "FlatAreas.h"

#include "ColorPlanes.h"
#include "EdgeShades.h"
#include "SeenPixels.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace lumora
{

namespace
{

/// Adds where a row's blocks are not of a single sample in this channel.
template <typename Sample> void addUneven(const Sample *row, const Sample *below, int blocks, std::uint8_t *uneven)
{
    for (int x = 0; x < blocks; ++x) {
        const unsigned own = row[x];
        const unsigned difference = (own ^ row[x + 1]) | (own ^ below[x]) | (own ^ below[x + 1]);
        if constexpr (sizeof(Sample) == 1)
            uneven[x] |= static_cast<std::uint8_t>(difference);
        else
            uneven[x] |= static_cast<std::uint8_t>(difference | (difference >> 8));
    }
}

/// A run of scaled pixels, from `first` up to, not including, `end`.
struct Run
{
    int first = 0;
    int end = 0;
};

/// Finds, for one stretch of rows at a time, the runs of scaled pixels that see a single colour.
class FlatRuns
{
public:
    FlatRuns(int blocks, std::vector<Stretch> columns)
        : m_columns(std::move(columns)), m_joined(static_cast<std::size_t>(blocks))
    {
    }

    /// The runs within that many rows of blocks, from left to right.
    const std::vector<Run> &find(const std::uint8_t *uneven, int rows)
    {
        join(uneven, rows);
        m_runs.clear();
        const std::uint8_t *begin = m_joined.data();
        const std::uint8_t *end = begin + m_joined.size();
        auto column = m_columns.cbegin();
        for (const std::uint8_t *at = begin; at != end;) {
            const void *even = std::memchr(at, 0, static_cast<std::size_t>(end - at));
            if (even == nullptr)
                break;
            const auto *from = static_cast<const std::uint8_t *>(even);
            at = firstUneven(from, end);
            // Blocks that touch share pixels, so all of the run's have the same colour.
            column = std::lower_bound(column, m_columns.cend(), static_cast<int>(from - begin),
                                      [](Stretch seen, int first) { return seen.first < first; });
            const auto beyond = std::upper_bound(column, m_columns.cend(), static_cast<int>(at - begin),
                                                 [](int last, Stretch seen) { return last < seen.last; });
            if (column != beyond)
                m_runs.push_back(
                    {static_cast<int>(column - m_columns.cbegin()), static_cast<int>(beyond - m_columns.cbegin())});
        }
        return m_runs;
    }

    Stretch seenBy(int scaledColumn) const { return m_columns[static_cast<std::size_t>(scaledColumn)]; }

private:
    void join(const std::uint8_t *uneven, int rows)
    {
        const std::size_t blocks = m_joined.size();
        std::uint8_t *const joined = m_joined.data();
        std::copy_n(uneven, blocks, joined);
        for (int y = 1; y < rows; ++y) {
            uneven += blocks;
            for (std::size_t x = 0; x < blocks; ++x)
                joined[x] |= uneven[x];
        }
    }

    static const std::uint8_t *firstUneven(const std::uint8_t *at, const std::uint8_t *end)
    {
        constexpr std::ptrdiff_t step = sizeof(std::uint64_t);
        for (std::uint64_t several = 0; end - at >= step; at += step) {
            std::memcpy(&several, at, sizeof several);
            if (several != 0)
                break;
        }
        return std::find_if(at, end, [](std::uint8_t block) { return block != 0; });
    }

    std::vector<Stretch> m_columns;
    std::vector<std::uint8_t> m_joined;
    std::vector<Run> m_runs;
};

/// What the filter made of a pixel that is itself of the single colour `own`, kept between the colours that occur in
/// that part of the picture; and `own` where no more than a sixteenth of their span is between the two, which is what
/// the filter rounds the foot of an edge by.
template <typename Sample>
Sample besideEdge(Sample value, Sample own, const ColorPlanes &picture, int channel, Stretch columns, Stretch rows)
{
    if (value == own)
        return own;
    int least = own;
    int most = own;
    for (int y = rows.first; y <= rows.last; ++y) {
        const Sample *row = picture.row<Sample>(channel, y);
        for (int x = columns.first; x <= columns.last; ++x) {
            least = std::min<int>(least, row[x]);
            most = std::max<int>(most, row[x]);
        }
    }
    const int kept = std::clamp<int>(value, least, most);
    constexpr int shares = 16;
    return std::abs(kept - own) * shares <= most - least ? own : static_cast<Sample>(kept);
}

/// Of the rows one in so many tells whether a picture has flat areas, and at least so many of them do.
constexpr int rowsPerTriedRow = 8;
constexpr int fewestRowsTried = 64;
/// One block in so many is flat in a picture that has flat areas.
constexpr qsizetype leastFlatShare = 256;

constexpr int ownHalfPixels = 1;
constexpr int middleLobeHalfPixels = 2;

} // namespace

FlatAreas::FlatAreas(const ColorPlanes &picture) : m_picture(picture), m_blocks(picture.size() - QSize(1, 1))
{
    if (m_blocks.isEmpty())
        return;
    if (picture.depth() == SampleDepth::Bits8)
        findAreas<std::uint8_t>();
    else
        findAreas<std::uint16_t>();
}

void FlatAreas::restoreIn(ColorPlanes &scaled) const
{
    if (m_blocks.isEmpty())
        return;
    if (m_picture.depth() == SampleDepth::Bits8)
        restoreSamples<std::uint8_t>(scaled);
    else
        restoreSamples<std::uint16_t>(scaled);
}

void FlatAreas::roundEdgesIn(ColorPlanes &scaled) const
{
    if (m_blocks.isEmpty())
        return;
    if (m_picture.depth() == SampleDepth::Bits8)
        EdgeShades<std::uint8_t>(m_picture, m_uneven, scaled.size()).roundIn(scaled);
    else
        EdgeShades<std::uint16_t>(m_picture, m_uneven, scaled.size()).roundIn(scaled);
}

template <typename Sample> void FlatAreas::findAreas()
{
    if (isPhotograph<Sample>()) {
        m_blocks = {};
        return;
    }
    const auto width = static_cast<std::size_t>(m_blocks.width());
    m_uneven.resize(width * static_cast<std::size_t>(m_blocks.height()));
    for (int y = 0; y < m_blocks.height(); ++y)
        findUneven<Sample>(y, m_uneven.data() + static_cast<std::size_t>(y) * width);
}

template <typename Sample> void FlatAreas::findUneven(int row, std::uint8_t *uneven) const
{
    for (int channel = 0; channel < m_picture.channels(); ++channel)
        addUneven(m_picture.row<Sample>(channel, row), m_picture.row<Sample>(channel, row + 1), m_blocks.width(),
                  uneven);
}

template <typename Sample> bool FlatAreas::isPhotograph() const
{
    std::vector<std::uint8_t> uneven;
    qsizetype seen = 0;
    qsizetype flat = 0;
    // From the middle of each step, where a picture's plain frame is not all that is seen of it.
    const int step = std::clamp(m_blocks.height() / fewestRowsTried, 1, rowsPerTriedRow);
    for (int y = step / 2; y < m_blocks.height(); y += step) {
        uneven.assign(static_cast<std::size_t>(m_blocks.width()), 0);
        findUneven<Sample>(y, uneven.data());
        seen += m_blocks.width();
        flat += std::count(uneven.cbegin(), uneven.cend(), std::uint8_t{0});
    }
    return flat * leastFlatShare < seen;
}

template <typename Sample> void FlatAreas::restoreSamples(ColorPlanes &scaled) const
{
    const QSize from = m_picture.size();
    const QSize to = scaled.size();
    const std::vector<Stretch> ownRows = stretchesSeen(to.height(), from.height(), ownHalfPixels);
    const std::vector<Stretch> seenRows = stretchesSeen(to.height(), from.height(), middleLobeHalfPixels);
    FlatRuns own(m_blocks.width(), stretchesSeen(to.width(), from.width(), ownHalfPixels));
    FlatRuns seen(m_blocks.width(), stretchesSeen(to.width(), from.width(), middleLobeHalfPixels));
    const auto find = [this](FlatRuns &runs, Stretch rows) -> const std::vector<Run> & {
        return runs.find(m_uneven.data() + qsizetype{rows.first} * m_blocks.width(), rows.last - rows.first);
    };
    for (std::size_t y = 0; y < ownRows.size(); ++y) {
        const std::vector<Run> &flat = find(own, ownRows[y]);
        if (flat.empty())
            continue;
        const std::vector<Run> &wholly = find(seen, seenRows[y]);
        for (int channel = 0; channel < m_picture.channels(); ++channel) {
            const Sample *above = m_picture.row<Sample>(channel, ownRows[y].first);
            Sample *row = scaled.row<Sample>(channel, static_cast<int>(y));
            auto inner = wholly.cbegin();
            for (const Run run : flat) {
                const Sample colour = above[own.seenBy(run.first).first];
                int x = run.first;
                const auto mendUpTo = [&](int end) {
                    for (; x < end; ++x)
                        row[x] = besideEdge(row[x], colour, m_picture, channel, seen.seenBy(x), seenRows[y]);
                };
                for (; inner != wholly.cend() && inner->first < run.end; ++inner) {
                    mendUpTo(inner->first);
                    std::fill(row + inner->first, row + inner->end, colour);
                    x = inner->end;
                }
                mendUpTo(run.end);
            }
        }
    }
}

} // namespace lumora
