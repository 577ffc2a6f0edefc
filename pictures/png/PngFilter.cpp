// SPDX-License-Identifier: MIT
#include "PngFilter.h"

#include "ByteOrderliness.h"
#include "Paeth.h"
#include "PngRows.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <span>

namespace lumora
{

namespace
{

constexpr int bytesPerPixel = 4;
constexpr int filters = 5;
constexpr std::uint8_t noFilter = 0;
constexpr std::uint8_t leftFilter = 1;
constexpr std::uint8_t upFilter = 2;
constexpr std::uint8_t averageFilter = 3;

int magnitude(std::uint8_t residue)
{
    return std::abs(static_cast<int>(static_cast<std::int8_t>(residue)));
}

/// Fills `residues` by one filter and returns the sum of their magnitudes. `row` and `above` have a pixel of zeroes
/// before their first one.
template <typename Predict>
unsigned residuesOf(const std::uint8_t *row, const std::uint8_t *above, int bytes, std::uint8_t *residues,
                    Predict predict)
{
    unsigned sum = 0;
    for (int i = 0; i < bytes; ++i) {
        const auto predicted =
            static_cast<std::uint8_t>(predict(row[i - bytesPerPixel], above[i], above[i - bytesPerPixel]));
        const auto residue = static_cast<std::uint8_t>(row[i] - predicted);
        residues[i] = residue;
        sum += static_cast<unsigned>(magnitude(residue));
    }
    return sum;
}

/// A row of the picture with a pixel of zeroes in front; all zeroes above the first row.
class PaddedRow
{
public:
    explicit PaddedRow(int bytes) : m_bytes(static_cast<std::size_t>(bytes + bytesPerPixel)) {}

    void load(const PngRows &picture, int y)
    {
        const std::span<std::uint8_t> row = std::span(m_bytes).subspan(bytesPerPixel);
        if (y < 0)
            std::fill(row.begin(), row.end(), std::uint8_t{0});
        else
            picture.readRow(y, row);
    }
    const std::uint8_t *pixels() const { return m_bytes.data() + bytesPerPixel; }
    bool isZero() const
    {
        return std::all_of(m_bytes.begin(), m_bytes.end(), [](std::uint8_t byte) { return byte == 0; });
    }
    bool operator==(const PaddedRow &) const = default;

private:
    std::vector<std::uint8_t> m_bytes;
};

/// Room for one more row at the end.
std::uint8_t *grownBy(std::vector<std::uint8_t> &rows, std::size_t bytes)
{
    rows.resize(rows.size() + bytes);
    return rows.data() + rows.size() - bytes;
}

void addPlainRows(const PngRows &picture, RowRange range, std::vector<std::uint8_t> &result)
{
    const std::size_t bytes = static_cast<std::size_t>(picture.size().width()) * bytesPerPixel;
    for (int y = range.first; y < range.end; ++y) {
        std::uint8_t *row = grownBy(result, bytes + 1);
        row[0] = 0;
        picture.readRow(y, std::span(row + 1, bytes));
    }
}

/// The predictions of the five filters, in the order of their numbers.
constexpr auto predictNothing = [](int, int, int) { return 0; };
constexpr auto predictLeft = [](int left, int, int) { return left; };
constexpr auto predictUp = [](int, int up, int) { return up; };
constexpr auto predictPaeth = [](int left, int up, int upperLeft) { return paeth(left, up, upperLeft); };
constexpr auto predictAverage = [](int left, int up, int) { return (left + up) / 2; };

template <typename Predict>
void addRowsBy(std::uint8_t filter, Predict predict, const PngRows &picture, RowRange range,
               std::vector<std::uint8_t> &result)
{
    const int bytes = picture.size().width() * bytesPerPixel;
    PaddedRow row(bytes);
    PaddedRow above(bytes);
    above.load(picture, range.first - 1);
    for (int y = range.first; y < range.end; ++y) {
        row.load(picture, y);
        std::uint8_t *residues = grownBy(result, static_cast<std::size_t>(bytes) + 1);
        residues[0] = filter;
        residuesOf(row.pixels(), above.pixels(), bytes, residues + 1, predict);
        std::swap(row, above);
    }
}

using Residues = std::array<std::vector<std::uint8_t>, filters>;

std::size_t smallestByMagnitude(const std::array<unsigned, filters> &sums)
{
    return static_cast<std::size_t>(std::min_element(sums.begin(), sums.end()) - sums.begin());
}

std::size_t smallestByEntropy(const Residues &residues)
{
    std::size_t best = 0;
    std::uint64_t bestSoFar = 0;
    for (std::size_t filter = 0; filter < filters; ++filter) {
        const std::uint64_t own = orderliness(residues[filter]);
        if (own > bestSoFar) {
            best = filter;
            bestSoFar = own;
        }
    }
    return best;
}

void addAdaptiveRows(const PngRows &picture, RowRange range, PngFilterChoice choice, std::vector<std::uint8_t> &result)
{
    const int bytes = picture.size().width() * bytesPerPixel;
    PaddedRow row(bytes);
    PaddedRow above(bytes);
    above.load(picture, range.first - 1);
    Residues residues;
    for (auto &candidate : residues)
        candidate.resize(static_cast<std::size_t>(bytes));

    for (int y = range.first; y < range.end; ++y) {
        row.load(picture, y);
        if (row == above) {
            // For large flat areas: only this filter turns a repeated row into nothing but zeroes. A row of zeroes is
            // that without a filter.
            result.push_back(row.isZero() ? noFilter : upFilter);
            result.insert(result.end(), static_cast<std::size_t>(bytes), 0);
            continue;
        }
        const std::uint8_t *pixels = row.pixels();
        const std::uint8_t *upper = above.pixels();
        const std::array<unsigned, filters> sums = {
            residuesOf(pixels, upper, bytes, residues[0].data(), predictNothing),
            residuesOf(pixels, upper, bytes, residues[1].data(), predictLeft),
            residuesOf(pixels, upper, bytes, residues[2].data(), predictUp),
            residuesOf(pixels, upper, bytes, residues[3].data(), predictAverage),
            residuesOf(pixels, upper, bytes, residues[4].data(), predictPaeth),
        };
        const std::size_t best =
            choice == PngFilterChoice::ByEntropy ? smallestByEntropy(residues) : smallestByMagnitude(sums);
        result.push_back(static_cast<std::uint8_t>(best));
        result.insert(result.end(), residues[best].begin(), residues[best].end());
        std::swap(row, above);
    }
}

} // namespace

std::vector<std::uint8_t> filteredRows(const PngRows &picture, std::span<const RowRange> ranges, PngFilterChoice choice)
{
    std::size_t count = 0;
    for (const RowRange range : ranges)
        count += static_cast<std::size_t>(range.end - range.first);
    std::vector<std::uint8_t> result;
    result.reserve(count * (static_cast<std::size_t>(picture.size().width()) * bytesPerPixel + 1));
    for (const RowRange range : ranges) {
        switch (choice) {
        case PngFilterChoice::ByEntropy:
        case PngFilterChoice::ByMagnitude:
            addAdaptiveRows(picture, range, choice, result);
            break;
        case PngFilterChoice::Left:
            addRowsBy(leftFilter, predictLeft, picture, range, result);
            break;
        case PngFilterChoice::Up:
            addRowsBy(upFilter, predictUp, picture, range, result);
            break;
        case PngFilterChoice::Average:
            addRowsBy(averageFilter, predictAverage, picture, range, result);
            break;
        case PngFilterChoice::None:
            addPlainRows(picture, range, result);
            break;
        }
    }
    return result;
}

double novelty(const std::vector<std::uint8_t> &rows, int width)
{
    const std::size_t rowBytes = static_cast<std::size_t>(width) * bytesPerPixel + 1;
    const auto pixel = [](const std::uint8_t *at) {
        std::uint32_t value = 0;
        std::memcpy(&value, at, sizeof value);
        return value;
    };
    std::size_t novel = 0;
    for (std::size_t row = rowBytes; row < rows.size(); row += rowBytes) {
        const std::uint8_t *pixels = rows.data() + row + 1;
        const std::uint8_t *upper = pixels - rowBytes;
        for (int x = 1; x < width; ++x) {
            const std::uint32_t own = pixel(pixels + bytesPerPixel * x);
            novel += static_cast<unsigned>(own != pixel(pixels + bytesPerPixel * (x - 1))) &
                     static_cast<unsigned>(own != pixel(upper + bytesPerPixel * x));
        }
    }
    return rows.empty() ? 0 : static_cast<double>(novel) * bytesPerPixel / static_cast<double>(rows.size());
}

} // namespace lumora
