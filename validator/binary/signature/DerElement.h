// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QList>

#include <optional>

namespace lumora
{

/// One value of ASN.1 in DER or BER, as views of the bytes that it was read from.
struct DerElement
{
    /// The identifier byte as written, with the constructed bit; values with tag numbers above 30 are not read.
    quint8 tag = 0;
    QByteArrayView whole;   ///< with identifier and length
    QByteArrayView content; ///< without them, and without the end mark of an indefinite length

    static constexpr quint8 boolean = 0x01;
    static constexpr quint8 integer = 0x02;
    static constexpr quint8 octets = 0x04;
    static constexpr quint8 objectIdentifier = 0x06;
    static constexpr quint8 utf8Text = 0x0C;
    static constexpr quint8 sequence = 0x30;
    static constexpr quint8 set = 0x31;
};

/// The value at the beginning of the bytes; empty when it is cut off or nested deeper than any real value.
std::optional<DerElement> derElement(QByteArrayView bytes);

/// The consecutive values in the bytes, at most `limit`; empty when one of them is damaged.
std::optional<QList<DerElement>> derElements(QByteArrayView bytes, qsizetype limit = 10'000);

} // namespace lumora
