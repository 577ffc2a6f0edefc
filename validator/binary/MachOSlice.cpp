// SPDX-License-Identifier: MIT
#include "MachOSlice.h"

#include "MachONames.h"

#include <algorithm>
#include <array>

namespace lumora
{

namespace
{

constexpr quint32 magic32 = 0xFEEDFACE;
constexpr quint32 magic64 = 0xFEEDFACF;

enum LoadCommand : quint32 {
    SegmentCommand = 0x1,
    SymbolTableCommand = 0x2,
    LoadDylibCommand = 0xC,
    DylibIdentityCommand = 0xD,
    Segment64Command = 0x19,
    UuidCommand = 0x1B,
    CodeSignatureCommand = 0x1D,
    LazyLoadDylibCommand = 0x20,
    EncryptionInfoCommand = 0x21,
    DyldInfoCommand = 0x22,
    MinimumMacOSCommand = 0x24,
    MinimumIosCommand = 0x25,
    SourceVersionCommand = 0x2A,
    EncryptionInfo64Command = 0x2C,
    MinimumTvOSCommand = 0x2F,
    MinimumWatchOSCommand = 0x30,
    BuildVersionCommand = 0x32,
    UnixThreadCommand = 0x5,
    LoadWeakDylibCommand = 0x80000018,
    RunPathCommand = 0x8000001C,
    ReexportDylibCommand = 0x8000001F,
    DyldInfoOnlyCommand = 0x80000022,
    LoadUpwardDylibCommand = 0x80000023,
    MainCommand = 0x80000028,
    ChainedFixupsCommand = 0x80000034,
};

/// The types of sections without bytes in the file.
bool hasNoBytes(quint32 flags)
{
    constexpr quint32 typeBits = 0xFF;
    constexpr std::array<quint32, 3> zeroFilled{0x1, 0xC, 0x12};
    return std::ranges::find(zeroFilled, flags & typeBits) != zeroFilled.end();
}

QString pathText(QByteArrayView bytes)
{
    return QString::fromUtf8(bytes);
}

class SliceReading
{
public:
    SliceReading(const ByteReader &reader, const BinaryLimits &limits, BinarySlice &facts)
        : m_reader(reader), m_limits(limits), m_names(limits), m_facts(facts)
    {
    }

    void readHeader();
    void readLoadCommands();
    void readNames();

private:
    void fault(BinaryFault what);
    void fault(std::optional<BinaryFault> what);

    /// False when the command's content does not fit into it.
    bool readCommand(quint32 command, const ByteReader &content);
    bool readSegment(const ByteReader &content);
    bool readSections(const ByteReader &content, BinarySegment &segment);
    bool readDylib(const ByteReader &content, LibraryLink link);
    bool readIdentity(const ByteReader &content);
    bool readRunPath(const ByteReader &content);
    bool readMinimum(const ByteReader &content, BinaryPlatform platform);
    bool readBuildVersion(const ByteReader &content);
    bool readSymbolTable(const ByteReader &content);
    bool readEncryption(const ByteReader &content);
    bool readUuid(const ByteReader &content);
    bool readSourceVersion(const ByteReader &content);
    bool readBindings(const ByteReader &content);
    std::optional<FileRange> rangeIn(const ByteReader &content) const;

    const ByteReader &m_reader;
    const BinaryLimits &m_limits;
    GatheredNames m_names;
    BinarySlice &m_facts;
    std::optional<SymbolTable> m_symbolTable;
    std::array<FileRange, 3> m_bindings; ///< ordinary, weak, lazy
    std::optional<FileRange> m_chainedFixups;
};

void SliceReading::fault(BinaryFault what)
{
    if (!m_facts.faults.contains(what)) {
        m_facts.faults += what;
        std::ranges::sort(m_facts.faults);
    }
}

void SliceReading::fault(std::optional<BinaryFault> what)
{
    if (what)
        fault(*what);
}

void SliceReading::readHeader()
{
    constexpr quint32 capabilityBits = 0xFF000000;
    m_facts.cpuType = m_reader.u32(4).value_or(0);
    m_facts.cpuSubtype = m_reader.u32(8).value_or(0) & ~capabilityBits;
    m_facts.architecture = architectureName(m_facts.cpuType, m_facts.cpuSubtype);
    m_facts.fileType = static_cast<BinaryFileType>(m_reader.u32(12).value_or(0));
    m_facts.flags = m_reader.u32(24).value_or(0);
}

void SliceReading::readLoadCommands()
{
    const quint64 headerSize = m_facts.is64Bit ? 32 : 28;
    const auto count = m_reader.u32(16);
    const auto room = m_reader.u32(20);
    if (!count || !room || m_reader.size() < headerSize) {
        fault(BinaryFault::CutOff);
        return;
    }
    if (!m_reader.holds(headerSize, *room))
        fault(BinaryFault::LoadCommandsPastEnd);
    const ByteReader commands(m_reader.clipped(headerSize, *room), m_reader.order());
    quint64 at = 0;
    for (quint32 i = 0; i < *count; ++i) {
        if (i >= static_cast<quint32>(m_limits.loadCommands)) {
            fault(BinaryFault::TooManyLoadCommands);
            return;
        }
        const auto command = commands.u32(at);
        const auto size = commands.u32(at + 4);
        if (!command || !size) {
            fault(BinaryFault::LoadCommandsPastEnd);
            return;
        }
        // With a size below that of the command's header the walk might not advance.
        constexpr quint32 smallest = 8;
        const auto content = commands.span(at, *size);
        if (*size < smallest || !content) {
            fault(BinaryFault::LoadCommandSize);
            return;
        }
        if (!readCommand(*command, ByteReader(*content, m_reader.order())))
            fault(BinaryFault::DamagedLoadCommand);
        at += *size;
    }
}

bool SliceReading::readCommand(quint32 command, const ByteReader &content)
{
    switch (command) {
    case SegmentCommand:
    case Segment64Command:
        // A segment's command must have the width of the file.
        return (command == Segment64Command) == m_facts.is64Bit && readSegment(content);
    case SymbolTableCommand:
        return readSymbolTable(content);
    case LoadDylibCommand:
        return readDylib(content, LibraryLink::Needed);
    case LoadWeakDylibCommand:
        return readDylib(content, LibraryLink::Weak);
    case ReexportDylibCommand:
        return readDylib(content, LibraryLink::Reexported);
    case LazyLoadDylibCommand:
        return readDylib(content, LibraryLink::Lazy);
    case LoadUpwardDylibCommand:
        return readDylib(content, LibraryLink::Upward);
    case DylibIdentityCommand:
        return readIdentity(content);
    case RunPathCommand:
        return readRunPath(content);
    case UuidCommand:
        return readUuid(content);
    case CodeSignatureCommand:
        m_facts.codeSignature = rangeIn(content);
        if (m_facts.codeSignature && !m_reader.holds(m_facts.codeSignature->offset, m_facts.codeSignature->size))
            fault(BinaryFault::CodeSignaturePastEnd);
        return m_facts.codeSignature.has_value();
    case EncryptionInfoCommand:
    case EncryptionInfo64Command:
        return readEncryption(content);
    case DyldInfoCommand:
    case DyldInfoOnlyCommand:
        return readBindings(content);
    case ChainedFixupsCommand:
        m_chainedFixups = rangeIn(content);
        return m_chainedFixups.has_value();
    case MinimumMacOSCommand:
        return readMinimum(content, BinaryPlatform::MacOS);
    case MinimumIosCommand:
        return readMinimum(content, BinaryPlatform::Ios);
    case MinimumTvOSCommand:
        return readMinimum(content, BinaryPlatform::TvOS);
    case MinimumWatchOSCommand:
        return readMinimum(content, BinaryPlatform::WatchOS);
    case BuildVersionCommand:
        return readBuildVersion(content);
    case SourceVersionCommand:
        return readSourceVersion(content);
    case MainCommand:
    case UnixThreadCommand:
        m_facts.hasEntryPoint = true;
        return true;
    default:
        return true;
    }
}

bool SliceReading::readSegment(const ByteReader &content)
{
    BinarySegment segment;
    segment.name = content.text(8, 16).toByteArray();
    if (m_facts.is64Bit) {
        if (!content.holds(0, 72))
            return false;
        segment.address = *content.u64(24);
        segment.size = *content.u64(32);
        segment.fileOffset = *content.u64(40);
        segment.fileSize = *content.u64(48);
        segment.maximumProtection = *content.u32(56);
        segment.initialProtection = *content.u32(60);
        segment.flags = *content.u32(68);
    } else {
        if (!content.holds(0, 56))
            return false;
        segment.address = *content.u32(24);
        segment.size = *content.u32(28);
        segment.fileOffset = *content.u32(32);
        segment.fileSize = *content.u32(36);
        segment.maximumProtection = *content.u32(40);
        segment.initialProtection = *content.u32(44);
        segment.flags = *content.u32(52);
    }
    if (!m_reader.holds(segment.fileOffset, segment.fileSize) && m_facts.fileType != BinaryFileType::DebugSymbols)
        fault(BinaryFault::SegmentPastEnd);
    const bool whole = readSections(content, segment);
    m_facts.segments += segment;
    return whole;
}

bool SliceReading::readSections(const ByteReader &content, BinarySegment &segment)
{
    const quint64 first = m_facts.is64Bit ? 72 : 56;
    const quint64 entrySize = m_facts.is64Bit ? 80 : 68;
    const quint32 count = *content.u32(m_facts.is64Bit ? 64 : 48);
    for (quint64 i = 0; i < count; ++i) {
        const auto bytes = content.span(first + i * entrySize, entrySize);
        if (!bytes)
            return false;
        const ByteReader entry(*bytes, content.order());
        BinarySection section;
        section.name = entry.text(0, 16).toByteArray();
        section.segment = entry.text(16, 16).toByteArray();
        const quint64 rest = m_facts.is64Bit ? 48 : 40;
        section.address = m_facts.is64Bit ? *entry.u64(32) : *entry.u32(32);
        section.size = m_facts.is64Bit ? *entry.u64(40) : *entry.u32(36);
        section.offset = *entry.u32(rest);
        section.alignment = *entry.u32(rest + 4);
        section.flags = *entry.u32(rest + 16);
        segment.sections += section;
    }
    return true;
}

bool SliceReading::readDylib(const ByteReader &content, LibraryLink link)
{
    const auto name = content.u32(8);
    const auto current = content.u32(16);
    const auto compatibility = content.u32(20);
    if (!name || !current || !compatibility || *name >= content.size())
        return false;
    m_facts.libraries +=
        LinkedLibrary{pathText(content.text(*name, content.size())), link, {*current}, {*compatibility}};
    return true;
}

bool SliceReading::readIdentity(const ByteReader &content)
{
    const auto name = content.u32(8);
    if (!name || *name >= content.size())
        return false;
    m_facts.identity = pathText(content.text(*name, content.size()));
    return true;
}

bool SliceReading::readRunPath(const ByteReader &content)
{
    const auto name = content.u32(8);
    if (!name || *name >= content.size())
        return false;
    m_facts.runPaths += pathText(content.text(*name, content.size()));
    return true;
}

bool SliceReading::readMinimum(const ByteReader &content, BinaryPlatform platform)
{
    const auto minimum = content.u32(8);
    const auto sdk = content.u32(12);
    if (!minimum || !sdk)
        return false;
    m_facts.targets += BinaryTarget{platform, {*minimum}, {*sdk}, {}};
    return true;
}

bool SliceReading::readBuildVersion(const ByteReader &content)
{
    const auto platform = content.u32(8);
    const auto minimum = content.u32(12);
    const auto sdk = content.u32(16);
    const auto toolCount = content.u32(20);
    if (!platform || !minimum || !sdk || !toolCount)
        return false;
    BinaryTarget target{static_cast<BinaryPlatform>(*platform), {*minimum}, {*sdk}, {}};
    bool whole = true;
    for (quint64 i = 0; i < *toolCount && whole; ++i) {
        const auto tool = content.u32(24 + i * 8);
        const auto version = content.u32(28 + i * 8);
        whole = tool && version;
        if (whole)
            target.tools += BuildTool{*tool, {*version}};
    }
    m_facts.targets += target;
    return whole;
}

bool SliceReading::readSymbolTable(const ByteReader &content)
{
    if (!content.holds(0, 24))
        return false;
    m_symbolTable = SymbolTable{*content.u32(8), *content.u32(12), *content.u32(16), *content.u32(20)};
    m_facts.hasSymbolTable = true;
    return true;
}

bool SliceReading::readEncryption(const ByteReader &content)
{
    if (!content.holds(0, 20))
        return false;
    m_facts.encryption = EncryptionInfo{*content.u32(8), *content.u32(12), *content.u32(16)};
    return true;
}

bool SliceReading::readUuid(const ByteReader &content)
{
    const auto bytes = content.span(8, 16);
    if (!bytes)
        return false;
    m_facts.uuid = QUuid::fromRfc4122(bytes->toByteArray());
    return true;
}

bool SliceReading::readSourceVersion(const ByteReader &content)
{
    // 24 bits, then four times 10 bits; the first three numbers are stored in the form of the other versions.
    const auto version = content.u64(8);
    if (!version)
        return false;
    const auto first = static_cast<quint32>(qMin<quint64>(*version >> 40, 0xFFFF));
    const auto second = static_cast<quint32>(qMin<quint64>(*version >> 30 & 0x3FF, 0xFF));
    const auto third = static_cast<quint32>(qMin<quint64>(*version >> 20 & 0x3FF, 0xFF));
    m_facts.sourceVersion = BinaryVersion{first << 16 | second << 8 | third};
    return true;
}

bool SliceReading::readBindings(const ByteReader &content)
{
    if (!content.holds(0, 48))
        return false;
    for (std::size_t i = 0; i < m_bindings.size(); ++i)
        m_bindings[i] = {*content.u32(16 + i * 8), *content.u32(20 + i * 8)};
    return true;
}

std::optional<FileRange> SliceReading::rangeIn(const ByteReader &content) const
{
    const auto offset = content.u32(8);
    const auto size = content.u32(12);
    if (!offset || !size)
        return std::nullopt;
    return FileRange{*offset, *size};
}

void SliceReading::readNames()
{
    if (m_symbolTable)
        fault(gatherSymbols(m_reader, *m_symbolTable, m_limits, m_names, m_facts));
    for (const FileRange &binding : m_bindings) {
        if (!m_reader.holds(binding.offset, binding.size))
            fault(BinaryFault::DamagedBindings);
        fault(gatherBindings(m_reader.clipped(binding.offset, binding.size), m_names, m_facts));
    }
    if (m_chainedFixups) {
        const ByteReader fixups(m_reader.clipped(m_chainedFixups->offset, m_chainedFixups->size), m_reader.order());
        fault(gatherChainedImports(fixups, m_limits, m_names, m_facts));
    }
    // Encrypted names are meaningless.
    if (!m_facts.isEncrypted()) {
        // Sections may claim the same bytes many times; no real file has more texts than this.
        quint64 room = static_cast<quint64>(m_limits.nameBytes);
        for (const BinarySegment &segment : m_facts.segments) {
            for (const BinarySection &section : segment.sections) {
                const bool classes = section.name == "__objc_classname";
                if ((!classes && section.name != "__objc_methname") || hasNoBytes(section.flags))
                    continue;
                const QByteArrayView texts = m_reader.clipped(section.offset, qMin(section.size, room));
                room -= static_cast<quint64>(texts.size());
                fault(gatherTexts(texts, m_names, classes ? m_facts.objectiveCClasses : m_facts.objectiveCSelectors));
            }
        }
    }
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
    BinarySlice facts;
    facts.is64Bit = (isLittle ? magic : turned) == magic64;
    SliceReading reading(isLittle ? little : big, limits, facts);
    reading.readHeader();
    reading.readLoadCommands();
    reading.readNames();
    return facts;
}

} // namespace lumora
