// SPDX-License-Identifier: MIT
#include "MachOSlice.h"

#include "FaultList.h"
#include "MachOLoadCommands.h"
#include "MachOSegments.h"

namespace lumora
{

namespace
{

constexpr quint32 magic32 = 0xFEEDFACE;
constexpr quint32 magic64 = 0xFEEDFACF;

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
            const bool classes = section.name == "__objc_classname";
            if ((!classes && section.name != "__objc_methname") || !hasBytesInFile(section))
                continue;
            const QByteArrayView texts = m_slice.clipped(section.offset, qMin(section.size, room));
            room -= static_cast<quint64>(texts.size());
            fault(gatherTexts(texts, m_names, classes ? m_facts.objectiveCClasses : m_facts.objectiveCSelectors));
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

std::optional<BinarySlice> readMachOSlice(QByteArrayView bytes, const BinaryLimits &limits)
{
    const ByteReader little(bytes, ByteOrder::Little);
    const ByteReader big(bytes, ByteOrder::Big);
    const quint32 magic = little.u32(0).value_or(0);
    const quint32 turned = big.u32(0).value_or(0);
    const bool isLittle = magic == magic32 || magic == magic64;
    if (!isLittle && turned != magic32 && turned != magic64)
        return std::nullopt;
    const ByteReader &slice = isLittle ? little : big;
    BinarySlice facts;
    facts.is64Bit = (isLittle ? magic : turned) == magic64;
    readHeader(slice, facts);
    const NamePlaces places = readLoadCommands(slice, limits, facts);
    NameReading names(slice, limits, facts);
    names.readSymbols(places);
    // Encrypted names are meaningless.
    if (!facts.isEncrypted())
        names.readObjectiveC();
    names.finish();
    return facts;
}

} // namespace lumora
