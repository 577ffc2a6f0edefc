// SPDX-License-Identifier: MIT
#pragma once

#include "MachOReader.h"
#include "validator/binary/ByteReader.h"

namespace lumora
{

/// Collects the names of one slice: bounded in bytes, sorted and without duplicates at the end.
class GatheredNames
{
public:
    explicit GatheredNames(const BinaryLimits &limits)
        : m_limits(limits), m_bytesLeft(limits.nameBytes), m_lookLeft(limits.nameBytes * looksPerByte)
    {
    }

    /// False once the space for names is used up, or too many bytes were read; the name is then dropped.
    bool add(QByteArrayList &list, QByteArrayView name);
    qsizetype nameLength() const { return m_limits.nameLength; }

    static void finish(QByteArrayList &list);

private:
    /// A table can refer to one long text a million times, so the number of read bytes is bounded, too.
    static constexpr qsizetype looksPerByte = 8;

    BinaryLimits m_limits;
    qsizetype m_bytesLeft;
    qsizetype m_lookLeft;
};

/// The place of a slice's symbols.
struct SymbolTable
{
    quint32 symbolOffset = 0;
    quint32 symbolCount = 0;
    quint32 nameOffset = 0;
    quint32 nameSize = 0;
};

constexpr quint64 symbolEntrySize(bool is64Bit)
{
    return is64Bit ? 16 : 12;
}

/// Whether the type of an entry in the symbol table is that of an external symbol, not of debugging.
constexpr bool isExternalSymbol(quint8 type)
{
    constexpr quint8 debugBits = 0xE0;
    constexpr quint8 externalBit = 0x01;
    return (type & debugBits) == 0 && (type & externalBit) != 0;
}

/// Adds the undefined external symbols to the imported ones, and the defined external symbols to the defined ones.
/// Returns the fault, if there is one.
std::optional<BinaryFault> gatherSymbols(const ByteReader &slice, const SymbolTable &table, const BinaryLimits &limits,
                                         GatheredNames &names, BinarySlice &facts);

/// Adds the names in the binding opcodes (LC_DYLD_INFO) to the imported symbols.
std::optional<BinaryFault> gatherBindings(QByteArrayView opcodes, GatheredNames &names, BinarySlice &facts);

/// Adds the names of the import table of LC_DYLD_CHAINED_FIXUPS to the imported symbols.
std::optional<BinaryFault> gatherChainedImports(const ByteReader &fixups, const BinaryLimits &limits,
                                                GatheredNames &names, BinarySlice &facts);

/// Adds the zero-ended texts of a section.
std::optional<BinaryFault> gatherTexts(QByteArrayView section, GatheredNames &names, QByteArrayList &list);

} // namespace lumora
