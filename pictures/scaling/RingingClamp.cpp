// SPDX-License-Identifier: MIT
#include "RingingClamp.h"

#include "ColorPlanes.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace lumora
{

namespace
{

/// The samples of a picture's row or column from `first` to `last`, both included. Positions before 0 or beyond the end
/// have no sample.
struct Window
{
    int first = 0;
    int last = 0;

    int length() const { return last - first + 1; }
};

qint64 dividedDown(qint64 number, qint64 by)
{
    return number >= 0 ? number / by : -((-number + by - 1) / by);
}

/// The samples that the filter's middle lobe covers, for each pixel of a scaled row or column. All arithmetic is in
/// integers, so that it rounds the same on every machine.
std::vector<Window> middleLobes(int scaled, int picture)
{
    // In units of half a scaled pixel, which is 2 * scaled of them to a sample of the picture.
    const qint64 reach = 2 * qint64{std::max(scaled, picture)};
    const qint64 unit = 2 * qint64{scaled};
    std::vector<Window> windows;
    windows.reserve(static_cast<std::size_t>(scaled));
    for (int i = 0; i < scaled; ++i) {
        // The first center beyond center - reach, the last one before center + reach.
        const qint64 center = (2 * qint64{i} + 1) * picture - scaled;
        windows.push_back({static_cast<int>(dividedDown(center - reach, unit) + 1),
                           static_cast<int>(-dividedDown(-(center + reach), unit) - 1)});
    }
    return windows;
}

/// The least and the most of the samples in each window of a row.
template <typename Sample> class RowBounds
{
public:
    RowBounds(int width, const std::vector<Window> &columns)
        : m_columns(columns), m_width(width), m_before(std::max(-columns.front().first, 0)),
          m_shortest(std::min_element(columns.begin(), columns.end(), [](Window one, Window other) {
                         return one.length() < other.length();
                     })->length())
    {
        const int behind = std::max(columns.back().last - (width - 1), 0);
        const auto samples = static_cast<std::size_t>(m_before + width + behind);
        // Missing samples neither lower the least nor raise the most.
        m_least.resize(samples);
        m_most.resize(samples);
    }

    /// Collects the bounds from these rows of the picture.
    void find(const ColorPlanes &picture, int channel, Window rows)
    {
        std::fill(m_least.begin(), m_least.end(), std::numeric_limits<Sample>::max());
        std::fill(m_most.begin(), m_most.end(), Sample{0});
        const int last = std::min(rows.last, picture.size().height() - 1);
        for (int y = std::max(rows.first, 0); y <= last; ++y)
            addRow(picture.row<Sample>(channel, y));
        joinNeighbors();
    }

    /// The value, clamped to the bounds of that column's window.
    Sample clamped(Sample value, std::size_t column) const
    {
        // Two overlapping runs together cover the window.
        const auto first = static_cast<std::size_t>(m_columns[column].first + m_before);
        const auto last = static_cast<std::size_t>(m_columns[column].last + m_before - m_joined + 1);
        const Sample least = std::min(m_least[first], m_least[last]);
        const Sample most = std::max(m_most[first], m_most[last]);
        return std::min(std::max(value, least), most);
    }

private:
    void addRow(const Sample *row)
    {
        Sample *least = m_least.data() + m_before;
        Sample *most = m_most.data() + m_before;
        for (int x = 0; x < m_width; ++x) {
            least[x] = std::min(least[x], row[x]);
            most[x] = std::max(most[x], row[x]);
        }
    }

    /// Turns each bound into that of a run of samples that begins there. The runs double in length as long as they fit
    /// every window.
    void joinNeighbors()
    {
        for (m_joined = 1; 2 * m_joined <= m_shortest; m_joined *= 2) {
            const std::size_t count = m_least.size() - static_cast<std::size_t>(m_joined);
            join(m_least.data(), count, [](Sample one, Sample other) { return std::min(one, other); });
            join(m_most.data(), count, [](Sample one, Sample other) { return std::max(one, other); });
        }
    }

    template <typename Choose> void join(Sample *bounds, std::size_t count, Choose choose) const
    {
        const Sample *ahead = bounds + m_joined;
        for (std::size_t i = 0; i < count; ++i)
            bounds[i] = choose(bounds[i], ahead[i]);
    }

    const std::vector<Window> &m_columns;
    int m_width;
    int m_before; ///< positions before the row's first sample
    int m_shortest;
    int m_joined = 1;
    std::vector<Sample> m_least;
    std::vector<Sample> m_most;
};

template <typename Sample> void clampSamples(const ColorPlanes &picture, ColorPlanes &scaled)
{
    const std::vector<Window> columns = middleLobes(scaled.size().width(), picture.size().width());
    const std::vector<Window> rows = middleLobes(scaled.size().height(), picture.size().height());
    RowBounds<Sample> bounds(picture.size().width(), columns);
    for (int channel = 0; channel < scaled.channels(); ++channel) {
        for (std::size_t y = 0; y < rows.size(); ++y) {
            bounds.find(picture, channel, rows[y]);
            Sample *row = scaled.row<Sample>(channel, static_cast<int>(y));
            for (std::size_t x = 0; x < columns.size(); ++x)
                row[x] = bounds.clamped(row[x], x);
        }
    }
}

} // namespace

void clampRinging(const ColorPlanes &picture, ColorPlanes &scaled)
{
    if (picture.depth() == SampleDepth::Bits8)
        clampSamples<std::uint8_t>(picture, scaled);
    else
        clampSamples<std::uint16_t>(picture, scaled);
}

} // namespace lumora
