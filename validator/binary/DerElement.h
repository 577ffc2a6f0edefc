// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QList>

#include <optional>

namespace lumora
{

/// One value of ASN.1 in DER or BER, where it lies in the bytes it was read from.
struct DerElement
{
    /// The identifier as it is written, number and constructed bit in one; tag numbers past 30 are read as no value.
    quint8 tag = 0;
    QByteArrayView whole;   ///< with identifier and length
    QByteArrayView content; ///< without; without the end mark of an indefinite length

    static constexpr quint8 boolean = 0x01;
    static constexpr quint8 integer = 0x02;
    static constexpr quint8 octets = 0x04;
    static constexpr quint8 objectIdentifier = 0x06;
    static constexpr quint8 utf8Text = 0x0C;
    static constexpr quint8 sequence = 0x30;
    static constexpr quint8 set = 0x31;
};

/// The value that the bytes begin with; nothing when they are cut off or nested deeper than anything real.
std::optional<DerElement> derElement(QByteArrayView bytes);

/// The values that follow one another in the bytes, at most `limit`; nothing when one of them is damaged.
std::optional<QList<DerElement>> derElements(QByteArrayView bytes, qsizetype limit = 10'000);

} // namespace lumora
