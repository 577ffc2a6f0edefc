// SPDX-License-Identifier: MIT
#include "MachONames.h"

#include <algorithm>

namespace lumora
{

namespace
{

constexpr quint8 typeBits = 0x0E;

/// The memory of a kept name in addition to its letters.
constexpr qsizetype nameOverhead = 48;

/// A number with seven bits in each byte, least significant first; empty when it does not end in time.
std::optional<quint64> leb128(QByteArrayView bytes, qsizetype &at)
{
    quint64 value = 0;
    for (int shift = 0; shift < 70; shift += 7) {
        if (at >= bytes.size())
            return std::nullopt;
        const auto byte = static_cast<quint8>(bytes[at++]);
        if (shift < 64)
            value |= quint64{byte & 0x7FU} << shift;
        if ((byte & 0x80) == 0)
            return value;
    }
    return std::nullopt;
}

/// The count of such numbers after an opcode (its high four bits).
int numbersBehind(quint8 opcode)
{
    switch (opcode & 0xF0) {
    case 0x20: // library ordinal
    case 0x60: // addend
    case 0x70: // segment and offset
    case 0x80: // address to add
    case 0xA0: // bind, then address to add
        return 1;
    case 0xC0: // bind a number of times, skipping
        return 2;
    default:
        return 0;
    }
}

} // namespace

bool GatheredNames::add(QByteArrayList &list, QByteArrayView name)
{
    m_lookLeft -= name.size() + 1;
    if (m_lookLeft < 0)
        return false;
    if (name.isEmpty() || (!list.isEmpty() && list.constLast() == name))
        return true;
    if (name.size() + nameOverhead > m_bytesLeft)
        return false;
    m_bytesLeft -= name.size() + nameOverhead;
    list += name.toByteArray();
    return true;
}

void GatheredNames::finish(QByteArrayList &list)
{
    std::ranges::sort(list);
    list.erase(std::unique(list.begin(), list.end()), list.end());
    list.squeeze();
}

std::optional<BinaryFault> gatherSymbols(const ByteReader &slice, const SymbolTable &table, const BinaryLimits &limits,
                                         GatheredNames &names, BinarySlice &facts)
{
    const quint64 entrySize = symbolEntrySize(facts.is64Bit);
    const ByteReader texts(slice.clipped(table.nameOffset, table.nameSize), slice.order());
    std::optional<BinaryFault> fault;
    if (!slice.holds(table.symbolOffset, table.symbolCount * entrySize) || texts.size() < table.nameSize)
        fault = BinaryFault::SymbolsPastEnd;
    for (quint64 i = 0; i < table.symbolCount; ++i) {
        if (i >= static_cast<quint64>(limits.symbols))
            return BinaryFault::TooManySymbols;
        const quint64 entry = table.symbolOffset + i * entrySize;
        const auto place = slice.u32(entry);
        const auto type = slice.u8(entry + 4);
        if (!slice.holds(entry, entrySize) || !place || !type)
            return BinaryFault::SymbolsPastEnd;
        const quint64 value = facts.is64Bit ? slice.u64(entry + 8).value_or(0) : slice.u32(entry + 8).value_or(0);
        if (!isExternalSymbol(*type))
            continue;
        const bool undefined = (*type & typeBits) == 0 && value == 0;
        const QByteArrayView name = texts.text(*place, static_cast<quint64>(names.nameLength()));
        if (!names.add(undefined ? facts.importedSymbols : facts.definedSymbols, name))
            return BinaryFault::TooManySymbols;
    }
    return fault;
}

std::optional<BinaryFault> gatherBindings(QByteArrayView opcodes, GatheredNames &names, BinarySlice &facts)
{
    const ByteReader reader(opcodes, ByteOrder::Little);
    qsizetype at = 0;
    while (at < opcodes.size()) {
        const auto opcode = static_cast<quint8>(opcodes[at++]);
        if ((opcode & 0xF0) == 0x40) {
            const QByteArrayView name = reader.text(static_cast<quint64>(at), static_cast<quint64>(names.nameLength()));
            at += name.size() + 1;
            if (at > opcodes.size())
                return BinaryFault::DamagedBindings;
            if (!names.add(facts.importedSymbols, name))
                return BinaryFault::TooManySymbols;
            continue;
        }
        if ((opcode & 0xF0) == 0xD0) {
            // Threaded binding: kind 0 is followed by the size of its table, kind 1 by nothing.
            if ((opcode & 0x0F) == 0 && !leb128(opcodes, at))
                return BinaryFault::DamagedBindings;
            continue;
        }
        for (int i = 0; i < numbersBehind(opcode); ++i) {
            if (!leb128(opcodes, at))
                return BinaryFault::DamagedBindings;
        }
    }
    return std::nullopt;
}

std::optional<BinaryFault> gatherChainedImports(const ByteReader &fixups, const BinaryLimits &limits,
                                                GatheredNames &names, BinarySlice &facts)
{
    const auto importsOffset = fixups.u32(8);
    const auto textsOffset = fixups.u32(12);
    const auto count = fixups.u32(16);
    const auto format = fixups.u32(20);
    const auto textsFormat = fixups.u32(24);
    if (!importsOffset || !textsOffset || !count || !format || !textsFormat)
        return BinaryFault::DamagedBindings;
    if (*count == 0)
        return std::nullopt;
    constexpr quint32 plain = 1;
    constexpr quint32 withAddend = 2;
    constexpr quint32 withLongAddend = 3;
    // The format allows compressed texts, but no linker writes them.
    if (*format < plain || *format > withLongAddend || *textsFormat != 0)
        return BinaryFault::DamagedBindings;
    const quint64 entrySize = *format == plain ? 4 : *format == withAddend ? 8 : 16;
    for (quint64 i = 0; i < *count; ++i) {
        if (i >= static_cast<quint64>(limits.symbols))
            return BinaryFault::TooManySymbols;
        const quint64 entry = *importsOffset + i * entrySize;
        quint64 place = 0;
        if (*format == withLongAddend) {
            const auto bits = fixups.u64(entry);
            if (!bits)
                return BinaryFault::DamagedBindings;
            place = *bits >> 32;
        } else {
            const auto bits = fixups.u32(entry);
            if (!bits)
                return BinaryFault::DamagedBindings;
            place = *bits >> 9;
        }
        const QByteArrayView name = fixups.text(*textsOffset + place, static_cast<quint64>(names.nameLength()));
        if (!names.add(facts.importedSymbols, name))
            return BinaryFault::TooManySymbols;
    }
    return std::nullopt;
}

std::optional<BinaryFault> gatherTexts(QByteArrayView section, GatheredNames &names, QByteArrayList &list)
{
    const ByteReader reader(section, ByteOrder::Little);
    for (qsizetype at = 0; at < section.size();) {
        const QByteArrayView name = reader.text(static_cast<quint64>(at), static_cast<quint64>(names.nameLength()));
        at += name.size() + 1;
        if (!names.add(list, name))
            return BinaryFault::TooManySymbols;
    }
    return std::nullopt;
}

} // namespace lumora
