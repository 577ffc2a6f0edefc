// SPDX-License-Identifier: MIT
#pragma once

#include "SealXml.h"

#include <optional>

namespace lumora
{

/// Reads `_CodeSignature/CodeResources` piece by piece. Tools write it as XML, of which nothing is kept; the binary
/// form is kept whole and may be `mostBinaryBytes` long.
class SealReader
{
public:
    /// A million files of a usual name fill more than this twice. Reading so much takes about a second.
    static constexpr quint64 mostBytes = quint64{64} << 20;
    static constexpr qsizetype mostBinaryBytes = 4 << 20;
    /// As many as a package may have entries.
    static constexpr qsizetype mostRows = 500'000;

    explicit SealReader(SealTaker &taker) : m_taker(taker), m_xml(taker, mostRows) {}

    /// The next bytes. False when no more are needed.
    bool take(QByteArrayView bytes);
    /// How the reading ended; call it after the last bytes.
    SealEnd finish();

private:
    void takeXml(QByteArrayView bytes) { m_end = m_xml.take(bytes); }
    SealEnd readBinary();

    SealTaker &m_taker;
    SealXml m_xml;
    quint64 m_taken = 0;
    QByteArray m_kept; ///< the first bytes until they show the form, then the binary form
    bool m_isXml = false;
    std::optional<SealEnd> m_end;
};

} // namespace lumora
