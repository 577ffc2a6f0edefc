// SPDX-License-Identifier: MIT
#include "BinaryPlistBounds.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

namespace lumora
{

namespace
{

constexpr qsizetype headerSize = 8;   // "bplist00"
constexpr qsizetype trailerSize = 32; // 6 unused bytes, two sizes, three 64-bit numbers

/// The size of one object when every reference in it is followed.
struct Extent
{
    enum class State : std::uint8_t { Unseen, Open, Known };

    State state = State::Unseen;
    qsizetype values = 0;
    qsizetype bytes = 0;
    qsizetype depth = 0;
};

/// The object's kind, and the place of its references or bytes.
struct Object
{
    qsizetype references = 0;
    qsizetype referencesAt = 0;
    qsizetype bytes = 0;
};

bool isText(int kind)
{
    return kind >= 0x5 && kind <= 0x7;
}

class Walk
{
public:
    Walk(QByteArrayView bytes, const PropertyListLimits &limits) : m_bytes(bytes), m_limits(limits) {}

    bool bounded();

private:
    /// Reads a big-endian number of 1 to 8 bytes; empty beyond the end of the file and for numbers larger than any file
    /// size.
    std::optional<qsizetype> number(qsizetype at, qsizetype width) const;
    std::optional<Object> object(qsizetype index) const;
    std::optional<qsizetype> lengthAt(qsizetype &at, int nibble) const;
    bool measure(qsizetype root);
    bool holdsZero(qsizetype at, qsizetype units, qsizetype width) const;
    bool withinLimits(const Extent &extent) const;

    QByteArrayView m_bytes;
    PropertyListLimits m_limits;
    qsizetype m_offsetWidth = 0;
    qsizetype m_referenceWidth = 0;
    qsizetype m_offsetTable = 0;
    std::vector<Extent> m_extents;
};

std::optional<qsizetype> Walk::number(qsizetype at, qsizetype width) const
{
    if (at < 0 || width < 1 || width > 8 || at > m_bytes.size() - width)
        return std::nullopt;
    std::uint64_t value = 0;
    for (qsizetype i = 0; i < width; ++i)
        value = value << 8 | static_cast<unsigned char>(m_bytes[at + i]);
    if (value > std::uint64_t{1} << 40)
        return std::nullopt;
    return static_cast<qsizetype>(value);
}

/// The length after a marker: in its low four bits, or, if these are all set, in the number after it.
std::optional<qsizetype> Walk::lengthAt(qsizetype &at, int nibble) const
{
    if (nibble != 0xF)
        return nibble;
    const auto marker = number(at, 1);
    if (!marker || (*marker & 0xF0) != 0x10 || (*marker & 0xF) > 3)
        return std::nullopt;
    const qsizetype width = qsizetype{1} << (*marker & 0xF);
    const auto length = number(at + 1, width);
    at += 1 + width;
    return length;
}

std::optional<Object> Walk::object(qsizetype index) const
{
    const auto offset = number(m_offsetTable + index * m_offsetWidth, m_offsetWidth);
    if (!offset)
        return std::nullopt;
    const auto marker = number(*offset, 1);
    if (!marker)
        return std::nullopt;
    const auto kind = static_cast<int>(*marker >> 4);
    qsizetype at = *offset + 1;
    switch (kind) {
    case 0x0: // null, booleans
    case 0x1: // integer
    case 0x2: // real
    case 0x3: // date
    case 0x8: // UID
        return Object{};
    default:
        break;
    }
    const auto length = lengthAt(at, static_cast<int>(*marker & 0xF));
    if (!length)
        return std::nullopt;
    Object result;
    qsizetype width = 1;
    switch (kind) {
    case 0x4: // data
    case 0x5: // ASCII text
    case 0x7: // UTF-8 text
        result.bytes = *length;
        break;
    case 0x6: // UTF-16 text, up to three bytes of UTF-8 per unit
        width = 2;
        result.bytes = *length * 3;
        break;
    case 0xA: // array
    case 0xC: // set
        width = m_referenceWidth;
        result = {*length, at, 0};
        break;
    case 0xD: // dictionary: keys, then values
        width = m_referenceWidth;
        result = {*length * 2, at, 0};
        break;
    default:
        return std::nullopt;
    }
    const qsizetype units = result.references > 0 ? result.references : *length;
    if (at > m_bytes.size() || units > (m_bytes.size() - at) / width || (isText(kind) && holdsZero(at, units, width)))
        return std::nullopt;
    return result;
}

bool Walk::holdsZero(qsizetype at, qsizetype units, qsizetype width) const
{
    for (qsizetype i = 0; i < units; ++i) {
        if (m_bytes[at + i * width] == 0 && m_bytes[at + (i + 1) * width - 1] == 0)
            return true;
    }
    return false;
}

bool Walk::withinLimits(const Extent &extent) const
{
    return extent.values <= m_limits.values && extent.bytes <= m_limits.expandedBytes && extent.depth <= m_limits.depth;
}

bool Walk::measure(qsizetype root)
{
    struct Visit
    {
        qsizetype index;
        Object object;
        qsizetype next = 0;
    };
    const auto enter = [this](qsizetype index) -> std::optional<Visit> {
        const auto found = object(index);
        if (!found)
            return std::nullopt;
        m_extents[static_cast<std::size_t>(index)] = {Extent::State::Open, 1, found->bytes, 1};
        return Visit{index, *found};
    };

    std::vector<Visit> open;
    const auto first = enter(root);
    if (!first)
        return false;
    open.push_back(*first);
    while (!open.empty()) {
        Visit &visit = open.back();
        Extent &extent = m_extents[static_cast<std::size_t>(visit.index)];
        if (!withinLimits(extent) || static_cast<qsizetype>(open.size()) > m_limits.depth)
            return false;
        if (visit.next == visit.object.references) {
            extent.state = Extent::State::Known;
            open.pop_back();
            continue;
        }
        const auto child = number(visit.object.referencesAt + visit.next * m_referenceWidth, m_referenceWidth);
        if (!child || *child >= static_cast<qsizetype>(m_extents.size()))
            return false;
        const Extent &inner = m_extents[static_cast<std::size_t>(*child)];
        if (inner.state == Extent::State::Open)
            return false; // refers to an object that contains it
        if (inner.state == Extent::State::Unseen) {
            const auto entered = enter(*child);
            if (!entered)
                return false;
            open.push_back(*entered);
            continue;
        }
        extent.values += inner.values;
        extent.bytes += inner.bytes;
        extent.depth = std::max(extent.depth, inner.depth + 1);
        ++visit.next;
    }
    return true;
}

bool Walk::bounded()
{
    if (m_bytes.size() < headerSize + trailerSize || m_bytes.size() > m_limits.fileBytes)
        return false;
    const qsizetype trailer = m_bytes.size() - trailerSize;
    m_offsetWidth = static_cast<unsigned char>(m_bytes[trailer + 6]);
    m_referenceWidth = static_cast<unsigned char>(m_bytes[trailer + 7]);
    const auto count = number(trailer + 8, 8);
    const auto root = number(trailer + 16, 8);
    const auto table = number(trailer + 24, 8);
    if (!count || !root || !table || m_offsetWidth < 1 || m_offsetWidth > 8 || m_referenceWidth < 1 ||
        m_referenceWidth > 8 || *root >= *count || *count > m_limits.values || *table > trailer ||
        *count > (trailer - *table) / m_offsetWidth)
        return false;
    m_offsetTable = *table;
    m_extents.resize(static_cast<std::size_t>(*count));
    return measure(*root);
}

} // namespace

bool binaryPlistIsBounded(QByteArrayView bytes, const PropertyListLimits &limits)
{
    return Walk(bytes, limits).bounded();
}

} // namespace lumora
