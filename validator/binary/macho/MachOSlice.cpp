// SPDX-License-Identifier: MIT
#include "MachOSlice.h"

#include "MachOLoadCommands.h"
#include "MachOSegments.h"
#include "validator/binary/FaultList.h"

namespace lumora
{

namespace
{

constexpr quint32 magic32 = 0xFEEDFACE;
constexpr quint32 magic64 = 0xFEEDFACF;
constexpr QByteArrayView classNames("__objc_classname");
constexpr QByteArrayView methodNames("__objc_methname");

/// Empty when the bytes do not begin with a Mach-O header.
std::optional<ByteOrder> sliceOrder(QByteArrayView bytes)
{
    for (const ByteOrder order : {ByteOrder::Little, ByteOrder::Big}) {
        const quint32 magic = ByteReader(bytes, order).u32(0).value_or(0);
        if (magic == magic32 || magic == magic64)
            return order;
    }
    return std::nullopt;
}

void readHeader(const ByteReader &slice, BinarySlice &facts)
{
    constexpr quint32 capabilityBits = 0xFF000000;
    facts.cpuType = slice.u32(4).value_or(0);
    facts.cpuSubtype = slice.u32(8).value_or(0) & ~capabilityBits;
    facts.architecture = architectureName(facts.cpuType, facts.cpuSubtype);
    facts.fileType = static_cast<BinaryFileType>(slice.u32(12).value_or(0));
    facts.flags = slice.u32(24).value_or(0);
}

/// The names in a slice whose load commands are read.
class NameReading
{
public:
    NameReading(const ByteReader &slice, const BinaryLimits &limits, BinarySlice &facts)
        : m_slice(slice), m_limits(limits), m_names(limits), m_facts(facts)
    {
    }

    void readSymbols(const NamePlaces &places);
    void readObjectiveC();
    void finish();

private:
    void fault(std::optional<BinaryFault> what);

    const ByteReader &m_slice;
    const BinaryLimits &m_limits;
    GatheredNames m_names;
    BinarySlice &m_facts;
};

void NameReading::fault(std::optional<BinaryFault> what)
{
    if (what)
        addFault(m_facts.faults, *what);
}

void NameReading::readSymbols(const NamePlaces &places)
{
    if (places.symbolTable)
        fault(gatherSymbols(m_slice, *places.symbolTable, m_limits, m_names, m_facts));
    for (const FileRange &binding : places.bindings) {
        if (!m_slice.holds(binding.offset, binding.size))
            fault(BinaryFault::DamagedBindings);
        fault(gatherBindings(m_slice.clipped(binding.offset, binding.size), m_names, m_facts));
    }
    if (places.chainedFixups) {
        const FileRange &range = *places.chainedFixups;
        const ByteReader fixups(m_slice.clipped(range.offset, range.size), m_slice.order());
        fault(gatherChainedImports(fixups, m_limits, m_names, m_facts));
    }
}

void NameReading::readObjectiveC()
{
    // Sections may claim the same bytes many times; no real file has more texts than this.
    quint64 room = static_cast<quint64>(m_limits.nameBytes);
    for (const BinarySegment &segment : m_facts.segments) {
        for (const BinarySection &section : segment.sections) {
            if (!hasObjectiveCNames(section))
                continue;
            const QByteArrayView texts = m_slice.clipped(section.offset, qMin(section.size, room));
            room -= static_cast<quint64>(texts.size());
            fault(gatherTexts(texts, m_names,
                              section.name == classNames ? m_facts.objectiveCClasses : m_facts.objectiveCSelectors));
        }
    }
}

void NameReading::finish()
{
    for (QByteArrayList *list :
         {&m_facts.importedSymbols, &m_facts.definedSymbols, &m_facts.objectiveCClasses, &m_facts.objectiveCSelectors})
        GatheredNames::finish(*list);
}

} // namespace

std::optional<SliceLayout> readSliceLayout(QByteArrayView bytes, const BinaryLimits &limits)
{
    const auto order = sliceOrder(bytes);
    if (!order)
        return std::nullopt;
    const ByteReader slice(bytes, *order);
    SliceLayout layout;
    layout.order = *order;
    layout.facts.is64Bit = slice.u32(0) == magic64;
    readHeader(slice, layout.facts);
    layout.places = readLoadCommands(slice, limits, layout.facts);
    return layout;
}

std::optional<BinarySlice> readMachOSlice(QByteArrayView bytes, const BinaryLimits &limits)
{
    auto layout = readSliceLayout(bytes, limits);
    if (!layout)
        return std::nullopt;
    const ByteReader slice(bytes, layout->order);
    NameReading names(slice, limits, layout->facts);
    names.readSymbols(layout->places);
    // Encrypted names are meaningless.
    if (!layout->facts.isEncrypted())
        names.readObjectiveC();
    names.finish();
    return std::move(layout->facts);
}

quint64 sliceLayoutSize(QByteArrayView bytes)
{
    const auto order = sliceOrder(bytes);
    if (!order)
        return 0;
    const quint64 commands = ByteReader(bytes, *order).u32(20).value_or(0);
    return sliceHeaderSize + commands;
}

bool hasObjectiveCNames(const BinarySection &section)
{
    return (section.name == classNames || section.name == methodNames) && hasBytesInFile(section);
}

} // namespace lumora
