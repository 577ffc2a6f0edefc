// SPDX-License-Identifier: MIT
#include "ByteOrderliness.h"

#include <array>
#include <bit>

namespace lumora
{

namespace
{

constexpr unsigned fractionBits = 16;
constexpr std::uint32_t countsInTable = 512;

/// log2 in fixed point; each squaring of the mantissa gives one more bit of the fraction.
constexpr std::uint64_t logarithm(std::uint32_t number)
{
    constexpr unsigned mantissaBits = 31;
    const unsigned whole = static_cast<unsigned>(std::bit_width(number)) - 1;
    std::uint64_t result = whole;
    std::uint64_t mantissa = std::uint64_t{number} << (mantissaBits - whole);
    for (unsigned bit = 0; bit < fractionBits; ++bit) {
        mantissa = mantissa * mantissa >> mantissaBits;
        const std::uint64_t carry = mantissa >> (mantissaBits + 1);
        result = result << 1U | carry;
        mantissa >>= carry;
    }
    return result;
}

constexpr auto weights = [] {
    std::array<std::uint32_t, countsInTable> table{};
    for (std::uint32_t count = 2; count < countsInTable; ++count)
        table[count] = static_cast<std::uint32_t>(count * logarithm(count));
    return table;
}();

} // namespace

std::uint64_t orderliness(std::span<const std::uint8_t> bytes)
{
    // One table for each byte of a pixel, so that the processor need not wait for one count before it begins the next.
    constexpr std::size_t lanes = 4;
    std::array<std::array<std::uint32_t, 256>, lanes> counts{};
    std::size_t i = 0;
    for (; i + lanes <= bytes.size(); i += lanes) {
        ++counts[0][bytes[i]];
        ++counts[1][bytes[i + 1]];
        ++counts[2][bytes[i + 2]];
        ++counts[3][bytes[i + 3]];
    }
    for (; i < bytes.size(); ++i)
        ++counts[0][bytes[i]];
    std::uint64_t sum = 0;
    for (std::size_t value = 0; value < counts[0].size(); ++value) {
        const std::uint32_t count = counts[0][value] + counts[1][value] + counts[2][value] + counts[3][value];
        sum += count < countsInTable ? weights[count] : count * logarithm(count);
    }
    return sum;
}

} // namespace lumora
