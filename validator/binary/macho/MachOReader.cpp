// SPDX-License-Identifier: MIT
#include "MachOReader.h"

#include "MachOSlice.h"
#include "validator/binary/ByteReader.h"
#include "validator/binary/FaultList.h"

#include <algorithm>

namespace lumora
{

namespace
{

constexpr quint32 fatMagic = 0xCAFEBABE;
constexpr quint32 fatMagic64 = 0xCAFEBABF;

bool overlap(const FileRange &one, const FileRange &other)
{
    return one.offset < other.offset + other.size && other.offset < one.offset + one.size;
}

/// A fat file's magic number is also that of a Java class. The number of slices is at the place of Java's version,
/// which is never below 45.
bool isFat(const ByteReader &file)
{
    constexpr quint32 firstJavaVersion = 45;
    const auto magic = file.u32(0);
    return magic == fatMagic64 || (magic == fatMagic && file.u32(4).value_or(0) < firstJavaVersion);
}

/// The places of a fat file's slices; the others are faults.
QList<FileRange> fatSlices(const ByteReader &file, const BinaryLimits &limits, BinaryFacts &facts)
{
    const bool wide = file.u32(0) == fatMagic64;
    const quint64 entrySize = wide ? 32 : 20;
    const quint32 count = file.u32(4).value_or(0);
    QList<FileRange> slices;
    const quint64 read = qMin<quint64>(count, static_cast<quint64>(limits.slices));
    QList<FileRange> taken{{0, 8 + read * entrySize}};
    for (quint64 i = 0; i < count; ++i) {
        if (i >= static_cast<quint64>(limits.slices)) {
            addFault(facts.faults, BinaryFault::TooManySlices);
            break;
        }
        const quint64 entry = 8 + i * entrySize;
        const quint64 offset = wide ? file.u64(entry + 8).value_or(0) : file.u32(entry + 8).value_or(0);
        const quint64 size = wide ? file.u64(entry + 16).value_or(0) : file.u32(entry + 12).value_or(0);
        if (!file.holds(entry, entrySize)) {
            addFault(facts.faults, BinaryFault::CutOff);
            break;
        }
        if (!file.holds(offset, size)) {
            addFault(facts.faults, BinaryFault::SlicePastEnd);
            continue;
        }
        const FileRange range{offset, size};
        if (std::ranges::any_of(taken, [&](const FileRange &other) { return overlap(range, other); })) {
            addFault(facts.faults, BinaryFault::OverlappingSlices);
            continue;
        }
        taken += range;
        slices += range;
    }
    return slices;
}

BinaryFacts readFat(const ByteReader &file, const BinaryLimits &limits)
{
    BinaryFacts facts;
    facts.isFat = true;
    for (const FileRange &range : fatSlices(file, limits, facts)) {
        auto slice = readMachOSlice(*file.span(range.offset, range.size), limits);
        if (!slice) {
            addFault(facts.faults, BinaryFault::UnreadableSlice);
            continue;
        }
        slice->range = range;
        facts.slices += std::move(*slice);
    }
    return facts;
}

} // namespace

bool isMachO(QByteArrayView bytes)
{
    const ByteReader file(bytes, ByteOrder::Big);
    const quint32 magic = file.u32(0).value_or(0);
    return magic == 0xFEEDFACE || magic == 0xFEEDFACF || magic == 0xCEFAEDFE || magic == 0xCFFAEDFE || isFat(file);
}

bool isStaticArchive(QByteArrayView bytes)
{
    return bytes.startsWith("!<arch>\n");
}

QList<FileRange> sliceRanges(QByteArrayView bytes, const BinaryLimits &limits)
{
    const ByteReader file(bytes, ByteOrder::Big);
    if (!isFat(file))
        return {{0, file.size()}};
    BinaryFacts facts;
    return fatSlices(file, limits, facts);
}

std::optional<BinaryFacts> readMachO(QByteArrayView bytes, const BinaryLimits &limits)
{
    const ByteReader file(bytes, ByteOrder::Big);
    if (isFat(file))
        return readFat(file, limits);
    auto slice = readMachOSlice(bytes, limits);
    if (!slice)
        return std::nullopt;
    slice->range = {0, static_cast<quint64>(bytes.size())};
    BinaryFacts facts;
    facts.slices += std::move(*slice);
    return facts;
}

} // namespace lumora
