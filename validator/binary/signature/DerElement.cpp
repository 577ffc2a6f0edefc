// SPDX-License-Identifier: MIT
#include "DerElement.h"

namespace lumora
{

namespace
{

constexpr int deepest = 24;

struct Extent
{
    qsizetype header;
    qsizetype content;
    qsizetype whole;
};

/// The parts of the value at the beginning of the bytes.
std::optional<Extent> extent(QByteArrayView bytes, int depthLeft)
{
    constexpr quint8 numberBits = 0x1F;
    if (bytes.size() < 2 || depthLeft == 0 || (static_cast<quint8>(bytes[0]) & numberBits) == numberBits)
        return std::nullopt;
    const auto first = static_cast<quint8>(bytes[1]);
    if (first < 0x80) {
        if (first > bytes.size() - 2)
            return std::nullopt;
        return Extent{2, first, 2 + first};
    }
    if (first == 0x80) {
        // A value of indefinite length: values up to an end mark of two zeros.
        qsizetype at = 2;
        while (at + 2 <= bytes.size()) {
            if (bytes[at] == 0 && bytes[at + 1] == 0)
                return Extent{2, at - 2, at + 2};
            const auto inner = extent(bytes.sliced(at), depthLeft - 1);
            if (!inner)
                return std::nullopt;
            at += inner->whole;
        }
        return std::nullopt;
    }
    const qsizetype count = first & 0x7F;
    constexpr qsizetype longest = 4;
    if (count > longest || bytes.size() < 2 + count)
        return std::nullopt;
    qsizetype length = 0;
    for (qsizetype i = 0; i < count; ++i)
        length = length << 8 | static_cast<quint8>(bytes[2 + i]);
    if (length > bytes.size() - 2 - count)
        return std::nullopt;
    return Extent{2 + count, length, 2 + count + length};
}

} // namespace

std::optional<DerElement> derElement(QByteArrayView bytes)
{
    const auto found = extent(bytes, deepest);
    if (!found)
        return std::nullopt;
    return DerElement{static_cast<quint8>(bytes[0]), bytes.first(found->whole),
                      bytes.sliced(found->header, found->content)};
}

std::optional<QList<DerElement>> derElements(QByteArrayView bytes, qsizetype limit)
{
    QList<DerElement> elements;
    while (!bytes.isEmpty()) {
        const auto element = derElement(bytes);
        if (!element || elements.size() >= limit)
            return std::nullopt;
        elements += *element;
        bytes = bytes.sliced(element->whole.size());
    }
    return elements;
}

} // namespace lumora
