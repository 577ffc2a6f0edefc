// SPDX-License-Identifier: MIT
#include "MachOLoadCommands.h"

#include "MachOSegments.h"
#include "validator/binary/FaultList.h"

namespace lumora
{

namespace
{

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

QString pathText(QByteArrayView bytes)
{
    return QString::fromUtf8(bytes);
}

class LoadCommandReading
{
public:
    LoadCommandReading(const ByteReader &slice, const BinaryLimits &limits, BinarySlice &facts)
        : m_slice(slice), m_limits(limits), m_facts(facts)
    {
    }

    void readAll();
    const NamePlaces &names() const { return m_names; }

private:
    /// False when the command's content does not fit into it.
    bool readCommand(quint32 command, const ByteReader &content);
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

    const ByteReader &m_slice;
    const BinaryLimits &m_limits;
    BinarySlice &m_facts;
    NamePlaces m_names;
};

void LoadCommandReading::readAll()
{
    const quint64 headerSize = m_facts.is64Bit ? 32 : 28;
    const auto count = m_slice.u32(16);
    const auto room = m_slice.u32(20);
    if (!count || !room || m_slice.size() < headerSize) {
        addFault(m_facts.faults, BinaryFault::CutOff);
        return;
    }
    if (!m_slice.holds(headerSize, *room))
        addFault(m_facts.faults, BinaryFault::LoadCommandsPastEnd);
    const ByteReader commands(m_slice.clipped(headerSize, *room), m_slice.order());
    quint64 at = 0;
    for (quint32 i = 0; i < *count; ++i) {
        if (i >= static_cast<quint32>(m_limits.loadCommands)) {
            addFault(m_facts.faults, BinaryFault::TooManyLoadCommands);
            return;
        }
        const auto command = commands.u32(at);
        const auto size = commands.u32(at + 4);
        if (!command || !size) {
            addFault(m_facts.faults, BinaryFault::LoadCommandsPastEnd);
            return;
        }
        // With a size below that of the command's header the walk might not advance.
        constexpr quint32 smallest = 8;
        const auto content = commands.span(at, *size);
        if (*size < smallest || !content) {
            addFault(m_facts.faults, BinaryFault::LoadCommandSize);
            return;
        }
        if (!readCommand(*command, ByteReader(*content, m_slice.order())))
            addFault(m_facts.faults, BinaryFault::DamagedLoadCommand);
        at += *size;
    }
}

bool LoadCommandReading::readCommand(quint32 command, const ByteReader &content)
{
    switch (command) {
    case SegmentCommand:
    case Segment64Command:
        // A segment's command must have the width of the file.
        return (command == Segment64Command) == m_facts.is64Bit && readMachOSegment(content, m_slice, m_facts);
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
        if (m_facts.codeSignature && !m_slice.holds(m_facts.codeSignature->offset, m_facts.codeSignature->size))
            addFault(m_facts.faults, BinaryFault::CodeSignaturePastEnd);
        return m_facts.codeSignature.has_value();
    case EncryptionInfoCommand:
    case EncryptionInfo64Command:
        return readEncryption(content);
    case DyldInfoCommand:
    case DyldInfoOnlyCommand:
        return readBindings(content);
    case ChainedFixupsCommand:
        m_names.chainedFixups = rangeIn(content);
        return m_names.chainedFixups.has_value();
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

bool LoadCommandReading::readDylib(const ByteReader &content, LibraryLink link)
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

bool LoadCommandReading::readIdentity(const ByteReader &content)
{
    const auto name = content.u32(8);
    if (!name || *name >= content.size())
        return false;
    m_facts.identity = pathText(content.text(*name, content.size()));
    return true;
}

bool LoadCommandReading::readRunPath(const ByteReader &content)
{
    const auto name = content.u32(8);
    if (!name || *name >= content.size())
        return false;
    m_facts.runPaths += pathText(content.text(*name, content.size()));
    return true;
}

bool LoadCommandReading::readMinimum(const ByteReader &content, BinaryPlatform platform)
{
    const auto minimum = content.u32(8);
    const auto sdk = content.u32(12);
    if (!minimum || !sdk)
        return false;
    m_facts.targets += BinaryTarget{platform, {*minimum}, {*sdk}, {}};
    return true;
}

bool LoadCommandReading::readBuildVersion(const ByteReader &content)
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

bool LoadCommandReading::readSymbolTable(const ByteReader &content)
{
    if (!content.holds(0, 24))
        return false;
    m_names.symbolTable = SymbolTable{*content.u32(8), *content.u32(12), *content.u32(16), *content.u32(20)};
    m_facts.hasSymbolTable = true;
    return true;
}

bool LoadCommandReading::readEncryption(const ByteReader &content)
{
    if (!content.holds(0, 20))
        return false;
    m_facts.encryption = EncryptionInfo{*content.u32(8), *content.u32(12), *content.u32(16)};
    return true;
}

bool LoadCommandReading::readUuid(const ByteReader &content)
{
    const auto bytes = content.span(8, 16);
    if (!bytes)
        return false;
    m_facts.uuid = QUuid::fromRfc4122(bytes->toByteArray());
    return true;
}

bool LoadCommandReading::readSourceVersion(const ByteReader &content)
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

bool LoadCommandReading::readBindings(const ByteReader &content)
{
    if (!content.holds(0, 48))
        return false;
    for (std::size_t i = 0; i < m_names.bindings.size(); ++i)
        m_names.bindings[i] = {*content.u32(16 + i * 8), *content.u32(20 + i * 8)};
    return true;
}

std::optional<FileRange> LoadCommandReading::rangeIn(const ByteReader &content) const
{
    const auto offset = content.u32(8);
    const auto size = content.u32(12);
    if (!offset || !size)
        return std::nullopt;
    return FileRange{*offset, *size};
}

} // namespace

NamePlaces readLoadCommands(const ByteReader &slice, const BinaryLimits &limits, BinarySlice &facts)
{
    LoadCommandReading reading(slice, limits, facts);
    reading.readAll();
    return reading.names();
}

} // namespace lumora
