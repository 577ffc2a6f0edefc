// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

#include <cstring>
#include <limits>
#include <optional>

namespace lumora
{

enum class ByteOrder { Little, Big };

/// Reads numbers and texts from foreign bytes. Never reads past the end: a value that is not completely inside is
/// empty.
class ByteReader
{
public:
    explicit ByteReader(QByteArrayView bytes, ByteOrder order) : m_bytes(bytes), m_order(order) {}

    quint64 size() const { return static_cast<quint64>(m_bytes.size()); }
    ByteOrder order() const { return m_order; }
    QByteArrayView bytes() const { return m_bytes; }

    bool holds(quint64 offset, quint64 length) const { return offset <= size() && length <= size() - offset; }

    std::optional<quint8> u8(quint64 offset) const { return number<quint8>(offset); }
    std::optional<quint16> u16(quint64 offset) const { return number<quint16>(offset); }
    std::optional<quint32> u32(quint64 offset) const { return number<quint32>(offset); }
    std::optional<quint64> u64(quint64 offset) const { return number<quint64>(offset); }

    /// The `length` bytes at the offset; empty if they are not all there.
    std::optional<QByteArrayView> span(quint64 offset, quint64 length) const
    {
        if (!holds(offset, length))
            return std::nullopt;
        return m_bytes.sliced(static_cast<qsizetype>(offset), static_cast<qsizetype>(length));
    }

    /// The existing part of the `length` bytes at the offset; empty past the end.
    QByteArrayView clipped(quint64 offset, quint64 length) const
    {
        if (offset >= size())
            return {};
        return m_bytes.sliced(static_cast<qsizetype>(offset), static_cast<qsizetype>(qMin(length, size() - offset)));
    }

    /// The text up to a zero, the limit or the end, whichever comes first.
    QByteArrayView text(quint64 offset, quint64 limit) const
    {
        const QByteArrayView room = clipped(offset, limit);
        const void *end = room.isEmpty() ? nullptr : std::memchr(room.data(), 0, static_cast<std::size_t>(room.size()));
        return end == nullptr ? room : room.first(static_cast<const char *>(end) - room.data());
    }

private:
    template <typename Number> std::optional<Number> number(quint64 offset) const
    {
        if (!holds(offset, sizeof(Number)))
            return std::nullopt;
        const auto *at = reinterpret_cast<const uchar *>(m_bytes.data()) + offset;
        Number value = 0;
        for (std::size_t i = 0; i < sizeof(Number); ++i) {
            const std::size_t place = m_order == ByteOrder::Little ? i : sizeof(Number) - 1 - i;
            value = static_cast<Number>(value | static_cast<Number>(static_cast<Number>(at[i]) << (8 * place)));
        }
        return value;
    }

    QByteArrayView m_bytes;
    ByteOrder m_order;
};

} // namespace lumora
