// SPDX-License-Identifier: MIT
#include "MachOSegments.h"

#include "validator/binary/FaultList.h"

#include <algorithm>
#include <array>

namespace lumora
{

namespace
{

bool readSections(const ByteReader &command, bool is64Bit, BinarySegment &segment)
{
    const quint64 first = is64Bit ? 72 : 56;
    const quint64 entrySize = is64Bit ? 80 : 68;
    const quint32 count = *command.u32(is64Bit ? 64 : 48);
    for (quint64 i = 0; i < count; ++i) {
        const auto bytes = command.span(first + i * entrySize, entrySize);
        if (!bytes)
            return false;
        const ByteReader entry(*bytes, command.order());
        BinarySection section;
        section.name = entry.text(0, 16).toByteArray();
        section.segment = entry.text(16, 16).toByteArray();
        const quint64 rest = is64Bit ? 48 : 40;
        section.address = is64Bit ? *entry.u64(32) : *entry.u32(32);
        section.size = is64Bit ? *entry.u64(40) : *entry.u32(36);
        section.offset = *entry.u32(rest);
        section.alignment = *entry.u32(rest + 4);
        section.flags = *entry.u32(rest + 16);
        segment.sections += section;
    }
    return true;
}

} // namespace

bool readMachOSegment(const ByteReader &command, const ByteReader &slice, BinarySlice &facts)
{
    BinarySegment segment;
    segment.name = command.text(8, 16).toByteArray();
    // Four numbers as wide as the machine's words, then four of 32 bits.
    constexpr qsizetype numbers = 24;
    const qsizetype width = facts.is64Bit ? 8 : 4;
    const qsizetype rest = numbers + 4 * width;
    if (!command.holds(0, rest + 16))
        return false;
    const auto number = [&](qsizetype index) -> quint64 {
        const qsizetype at = numbers + index * width;
        return facts.is64Bit ? *command.u64(at) : *command.u32(at);
    };
    segment.address = number(0);
    segment.size = number(1);
    segment.fileOffset = number(2);
    segment.fileSize = number(3);
    segment.maximumProtection = *command.u32(rest);
    segment.initialProtection = *command.u32(rest + 4);
    segment.flags = *command.u32(rest + 12);
    if (!slice.holds(segment.fileOffset, segment.fileSize) && facts.fileType != BinaryFileType::DebugSymbols)
        addFault(facts.faults, BinaryFault::SegmentPastEnd);
    const bool whole = readSections(command, facts.is64Bit, segment);
    facts.segments += segment;
    return whole;
}

bool hasBytesInFile(const BinarySection &section)
{
    constexpr quint32 typeBits = 0xFF;
    constexpr std::array<quint32, 3> zeroFilled{0x1, 0xC, 0x12};
    return std::ranges::find(zeroFilled, section.flags & typeBits) == zeroFilled.end();
}

} // namespace lumora
