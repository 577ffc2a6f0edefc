// SPDX-License-Identifier: MIT
#include "MachOSegments.h"

#include "FaultList.h"

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
    if (facts.is64Bit) {
        if (!command.holds(0, 72))
            return false;
        segment.address = *command.u64(24);
        segment.size = *command.u64(32);
        segment.fileOffset = *command.u64(40);
        segment.fileSize = *command.u64(48);
        segment.maximumProtection = *command.u32(56);
        segment.initialProtection = *command.u32(60);
        segment.flags = *command.u32(68);
    } else {
        if (!command.holds(0, 56))
            return false;
        segment.address = *command.u32(24);
        segment.size = *command.u32(28);
        segment.fileOffset = *command.u32(32);
        segment.fileSize = *command.u32(36);
        segment.maximumProtection = *command.u32(40);
        segment.initialProtection = *command.u32(44);
        segment.flags = *command.u32(52);
    }
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
