// SPDX-License-Identifier: MIT
#pragma once

#include "ByteReader.h"
#include "MachOReader.h"

namespace lumora
{

/// Names of one slice as they are gathered: bounded in number of bytes, sorted and each once in the end.
class GatheredNames
{
public:
    explicit GatheredNames(const BinaryLimits &limits)
        : m_limits(limits), m_bytesLeft(limits.nameBytes), m_lookLeft(limits.nameBytes * looksPerByte)
    {
    }

    /// False once the room for names is used up, or too many bytes were looked at; the name is dropped then.
    bool add(QByteArrayList &list, QByteArrayView name);
    qsizetype nameLength() const { return m_limits.nameLength; }

    static void finish(QByteArrayList &list);

private:
    /// A table can name one long text a million times: what is looked at is bounded, too.
    static constexpr qsizetype looksPerByte = 8;

    BinaryLimits m_limits;
    qsizetype m_bytesLeft;
    qsizetype m_lookLeft;
};

/// Where a slice keeps its symbols.
struct SymbolTable
{
    quint32 symbolOffset = 0;
    quint32 symbolCount = 0;
    quint32 nameOffset = 0;
    quint32 nameSize = 0;
};

/// Adds the undefined external symbols to the imported and the defined external ones to the defined. Answers the fault
/// met, if any.
std::optional<BinaryFault> gatherSymbols(const ByteReader &slice, const SymbolTable &table, const BinaryLimits &limits,
                                         GatheredNames &names, BinarySlice &facts);

/// Adds the names that the binding opcodes (LC_DYLD_INFO) ask for to the imported symbols.
std::optional<BinaryFault> gatherBindings(QByteArrayView opcodes, GatheredNames &names, BinarySlice &facts);

/// Adds the names of the import table of LC_DYLD_CHAINED_FIXUPS to the imported symbols.
std::optional<BinaryFault> gatherChainedImports(const ByteReader &fixups, const BinaryLimits &limits,
                                                GatheredNames &names, BinarySlice &facts);

/// Adds the zero-ended texts of a section.
std::optional<BinaryFault> gatherTexts(QByteArrayView section, GatheredNames &names, QByteArrayList &list);

} // namespace lumora
