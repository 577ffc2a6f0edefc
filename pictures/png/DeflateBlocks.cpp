// SPDX-License-Identifier: MIT
#include "DeflateBlocks.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <vector>

namespace lumora
{

namespace
{

constexpr unsigned longestCode = 15;
constexpr std::size_t literalSymbols = 288;
constexpr std::size_t distanceSymbols = 32;
constexpr unsigned endOfBlock = 256;

/// Reads bits, the lowest of each byte first; beyond the stream's end it reads zeroes.
class Bits
{
public:
    explicit Bits(std::span<const std::uint8_t> stream) : m_stream(stream) {}

    std::size_t position() const { return m_position; }
    bool isBeyondEnd() const { return m_position > 8 * m_stream.size(); }
    void skip(std::size_t bits) { m_position += bits; }
    void skipToByte() { m_position = (m_position + 7) / 8 * 8; }

    /// The next bits, at least 57.
    std::uint64_t ahead() const
    {
        const std::size_t byte = m_position / 8;
        std::uint64_t bits = 0;
        if (byte + sizeof bits <= m_stream.size())
            std::memcpy(&bits, m_stream.data() + byte, sizeof bits);
        else if (byte < m_stream.size())
            std::memcpy(&bits, m_stream.data() + byte, m_stream.size() - byte);
        return qFromLittleEndian(bits) >> (m_position % 8);
    }
    unsigned take(unsigned bits)
    {
        const auto value = static_cast<unsigned>(ahead() & ((std::uint64_t{1} << bits) - 1));
        m_position += bits;
        return value;
    }

private:
    std::span<const std::uint8_t> m_stream;
    std::size_t m_position = 0;
};

struct Symbol
{
    std::uint16_t value = 0;
    std::uint16_t bits = 0; ///< of its code; 0 where no code has this beginning
};

/// A prefix code, looked up by the number of bits in its longest code.
class PrefixCode
{
public:
    void make(std::span<const std::uint8_t> lengths)
    {
        std::array<unsigned, longestCode + 1> counts{};
        for (const std::uint8_t length : lengths)
            ++counts[length];
        counts[0] = 0;
        unsigned code = 0;
        unsigned longest = 1;
        for (unsigned length = 1; length <= longestCode; ++length) {
            code = (code + counts[length - 1]) << 1U;
            m_first[length] = code;
            if (counts[length] > 0)
                longest = length;
        }
        m_mask = (std::uint64_t{1} << longest) - 1;
        m_symbols.assign(m_mask + 1, {});
        for (std::size_t value = 0; value < lengths.size(); ++value) {
            const unsigned length = lengths[value];
            if (length == 0)
                continue;
            const std::size_t step = std::size_t{1} << length;
            for (std::size_t at = reversed(m_first[length]++, length); at <= m_mask; at += step)
                m_symbols[at] = {static_cast<std::uint16_t>(value), static_cast<std::uint16_t>(length)};
        }
    }

    Symbol at(std::uint64_t bits) const { return m_symbols[bits & m_mask]; }

private:
    static std::size_t reversed(unsigned code, unsigned length)
    {
        std::size_t result = 0;
        for (unsigned bit = 0; bit < length; ++bit)
            result |= std::size_t{code >> bit & 1U} << (length - 1 - bit);
        return result;
    }

    std::array<unsigned, longestCode + 1> m_first{};
    std::uint64_t m_mask = 0;
    std::vector<Symbol> m_symbols;
};

/// The number of bits that follow the code of a length or distance.
constexpr unsigned extraBitsOfLength(unsigned symbol)
{
    constexpr unsigned first = 257;
    constexpr unsigned longest = 285;
    return symbol < first + 8 || symbol >= longest ? 0 : (symbol - first) / 4 - 1;
}

constexpr unsigned extraBitsOfDistance(unsigned symbol)
{
    return symbol < 4 ? 0 : symbol / 2 - 1;
}

class BlockWalk
{
public:
    explicit BlockWalk(std::span<const std::uint8_t> stream) : m_bits(stream) {}

    std::optional<LastDeflateBlock> findLast()
    {
        for (;;) {
            LastDeflateBlock block{m_bits.position(), 0};
            const bool last = m_bits.take(1) == 1;
            if (!skipBlock(m_bits.take(2)) || m_bits.isBeyondEnd())
                return std::nullopt;
            block.end = m_bits.position();
            if (last)
                return block;
        }
    }

private:
    bool skipBlock(unsigned kind)
    {
        switch (kind) {
        case 0:
            skipStored();
            return true;
        case 1:
            makeFixedCodes();
            return skipSymbols();
        case 2:
            return readCodes() && skipSymbols();
        default:
            return false;
        }
    }

    void skipStored()
    {
        m_bits.skipToByte();
        const std::size_t bytes = m_bits.take(16);
        m_bits.skip(16 + 8 * bytes);
    }

    void makeFixedCodes()
    {
        std::array<std::uint8_t, literalSymbols> lengths{};
        std::fill(lengths.begin(), lengths.begin() + 144, std::uint8_t{8});
        std::fill(lengths.begin() + 144, lengths.begin() + 256, std::uint8_t{9});
        std::fill(lengths.begin() + 256, lengths.begin() + 280, std::uint8_t{7});
        std::fill(lengths.begin() + 280, lengths.end(), std::uint8_t{8});
        std::array<std::uint8_t, distanceSymbols> distances{};
        distances.fill(5);
        m_literals.make(lengths);
        m_distances.make(distances);
    }

    bool readCodes()
    {
        const std::size_t literals = m_bits.take(5) + 257;
        const std::size_t distances = m_bits.take(5) + 1;
        const std::size_t described = m_bits.take(4) + 4;
        constexpr std::array<std::uint8_t, 19> order = {16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                                        11, 4,  12, 3, 13, 2, 14, 1, 15};
        std::array<std::uint8_t, order.size()> lengthCodes{};
        for (std::size_t i = 0; i < described; ++i)
            lengthCodes[order[i]] = static_cast<std::uint8_t>(m_bits.take(3));
        PrefixCode lengthCode;
        lengthCode.make(lengthCodes);

        std::array<std::uint8_t, literalSymbols + distanceSymbols> lengths{};
        for (std::size_t i = 0; i < literals + distances;) {
            const Symbol symbol = lengthCode.at(m_bits.ahead());
            if (symbol.bits == 0)
                return false;
            m_bits.skip(symbol.bits);
            constexpr unsigned repeatLast = 16;
            constexpr unsigned fewZeroes = 17;
            if (symbol.value < repeatLast) {
                lengths[i++] = static_cast<std::uint8_t>(symbol.value);
                continue;
            }
            const std::uint8_t repeated = symbol.value == repeatLast && i > 0 ? lengths[i - 1] : std::uint8_t{0};
            const std::size_t times = symbol.value == repeatLast  ? 3 + m_bits.take(2)
                                      : symbol.value == fewZeroes ? 3 + m_bits.take(3)
                                                                  : 11 + m_bits.take(7);
            if (i + times > literals + distances)
                return false;
            std::fill_n(lengths.begin() + static_cast<std::ptrdiff_t>(i), times, repeated);
            i += times;
        }
        const std::span all(lengths);
        m_literals.make(all.first(literals));
        m_distances.make(all.subspan(literals, distances));
        return true;
    }

    bool skipSymbols()
    {
        while (!m_bits.isBeyondEnd()) {
            std::uint64_t ahead = m_bits.ahead();
            Symbol symbol = m_literals.at(ahead);
            if (symbol.value < endOfBlock && symbol.bits > 0) {
                m_bits.skip(symbol.bits);
                continue;
            }
            if (symbol.bits == 0)
                return false;
            if (symbol.value == endOfBlock) {
                m_bits.skip(symbol.bits);
                return true;
            }
            // The bits at hand are enough for the distance, whatever the length took.
            const unsigned lengthBits = symbol.bits + extraBitsOfLength(symbol.value);
            ahead >>= lengthBits;
            symbol = m_distances.at(ahead);
            if (symbol.bits == 0)
                return false;
            m_bits.skip(lengthBits + symbol.bits + extraBitsOfDistance(symbol.value));
        }
        return false;
    }

    Bits m_bits;
    PrefixCode m_literals;
    PrefixCode m_distances;
};

} // namespace

std::optional<LastDeflateBlock> findLastDeflateBlock(std::span<const std::uint8_t> stream)
{
    return BlockWalk(stream).findLast();
}

} // namespace lumora
