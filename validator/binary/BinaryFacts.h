// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUuid>

#include <optional>

namespace lumora
{

/// Three numbers in one word of 16, 8 and 8 bits, as load commands store them.
struct BinaryVersion
{
    quint32 packed = 0;

    int major() const { return static_cast<int>(packed >> 16); }
    int minor() const { return static_cast<int>(packed >> 8 & 0xFF); }
    int patch() const { return static_cast<int>(packed & 0xFF); }
    /// "15.0", or "15.0.1" where the third number is not zero.
    QString text() const;

    auto operator<=>(const BinaryVersion &) const = default;
};

/// The numbers are the file's own (LC_BUILD_VERSION).
enum class BinaryPlatform : quint32 {
    Unknown = 0,
    MacOS = 1,
    Ios = 2,
    TvOS = 3,
    WatchOS = 4,
    BridgeOS = 5,
    MacCatalyst = 6,
    IosSimulator = 7,
    TvOSSimulator = 8,
    WatchOSSimulator = 9,
    DriverKit = 10,
    VisionOS = 11,
    VisionOSSimulator = 12,
};

/// The numbers are the file's own.
enum class BinaryFileType : quint32 {
    Object = 1,
    Execute = 2,
    Dylib = 6,
    Dylinker = 7,
    Bundle = 8,
    DebugSymbols = 10,
};

/// A tool that made the file: 1 clang, 2 swift, 3 ld, 4 lld.
struct BuildTool
{
    quint32 tool = 0;
    BinaryVersion version;

    bool operator==(const BuildTool &) const = default;
};

/// A load command's facts about the system for which the file is built.
struct BinaryTarget
{
    BinaryPlatform platform = BinaryPlatform::Unknown;
    BinaryVersion minimumOS;
    BinaryVersion sdk;
    QList<BuildTool> tools; ///< empty in files older than LC_BUILD_VERSION
};

enum class LibraryLink { Needed, Weak, Reexported, Lazy, Upward };

struct LinkedLibrary
{
    QString path;
    LibraryLink link = LibraryLink::Needed;
    BinaryVersion currentVersion;
    BinaryVersion compatibilityVersion;
};

struct BinarySection
{
    QByteArray segment;
    QByteArray name;
    quint64 address = 0;
    quint64 size = 0;
    quint32 offset = 0;    ///< in the slice; 0 when the section has no bytes in the file
    quint32 alignment = 0; ///< power of two
    quint32 flags = 0;
};

struct BinarySegment
{
    QByteArray name;
    quint64 address = 0;
    quint64 size = 0;
    quint64 fileOffset = 0; ///< in the slice
    quint64 fileSize = 0;
    quint32 maximumProtection = 0;
    quint32 initialProtection = 0;
    quint32 flags = 0;
    QList<BinarySection> sections;
};

struct EncryptionInfo
{
    quint32 offset = 0;
    quint32 size = 0;
    quint32 id = 0; ///< 0 if the part is not encrypted yet
};

/// Bytes inside the slice.
struct FileRange
{
    quint64 offset = 0;
    quint64 size = 0;
};

/// The faults in the structure of a binary. The readable part is still reported.
enum class BinaryFault {
    CutOff,               ///< the file ends before its header or slice does
    TooManySlices,        ///< more than any real file has; none beyond the limit is read
    OverlappingSlices,    ///< two slices share bytes; the second is not read
    SlicePastEnd,         ///< a slice begins or ends beyond the file's end
    UnreadableSlice,      ///< a slice holds no Mach-O file
    LoadCommandsPastEnd,  ///< the load commands reach beyond the slice's end
    LoadCommandSize,      ///< a load command is shorter than its header or longer than the remaining space
    TooManyLoadCommands,  ///< more than any real file has
    DamagedLoadCommand,   ///< a load command whose content does not fit into it
    SegmentPastEnd,       ///< a segment's bytes reach beyond the slice's end
    SymbolsPastEnd,       ///< the symbol table or its names reach beyond the slice's end
    TooManySymbols,       ///< more names than are kept
    DamagedBindings,      ///< binding opcodes or chained imports with invalid references
    CodeSignaturePastEnd, ///< the code signature reaches beyond the slice's end
};

/// One architecture's part of a binary.
struct BinarySlice
{
    FileRange range; ///< in the file
    quint32 cpuType = 0;
    quint32 cpuSubtype = 0; ///< without the capability bits
    QString architecture;   ///< "arm64", "armv7", "x86_64" ...
    bool is64Bit = false;
    BinaryFileType fileType = BinaryFileType::Object;
    quint32 flags = 0;
    QList<BinaryTarget> targets; ///< one, or two in a file for both the Mac and Mac Catalyst
    std::optional<QUuid> uuid;
    std::optional<BinaryVersion> sourceVersion;
    QString identity; ///< the install name of a dynamic library
    QList<LinkedLibrary> libraries;
    QStringList runPaths;
    QList<BinarySegment> segments;
    std::optional<EncryptionInfo> encryption;
    std::optional<FileRange> codeSignature;
    bool hasEntryPoint = false;
    bool hasSymbolTable = false;

    QByteArrayList importedSymbols;     ///< sorted, without duplicates
    QByteArrayList definedSymbols;      ///< external symbols, sorted, without duplicates
    QByteArrayList objectiveCClasses;   ///< names of classes, categories and protocols that it defines; sorted
    QByteArrayList objectiveCSelectors; ///< of methods and messages; sorted
    QList<BinaryFault> faults;          ///< without duplicates, in the order of the enumeration

    bool imports(const QByteArray &symbol) const;
    /// True when the class is imported, or used in the way of 32-bit programs.
    bool importsClass(const QByteArray &name) const;
    bool namesSelector(const QByteArray &name) const;
    const BinarySegment *segment(const QByteArray &name) const;
    const BinarySection *section(const QByteArray &name) const;
    bool usesSwift() const;
    bool usesAutomaticReferenceCounting() const;
    /// True when the store has encrypted the code, so that its names cannot be read.
    bool isEncrypted() const { return encryption && encryption->id != 0; }
};

struct BinaryFacts
{
    bool isFat = false;
    QList<BinarySlice> slices;
    QList<BinaryFault> faults; ///< faults of the file around the slices
};

/// "ios", "ios-simulator", "macos" ...; empty for an unknown number.
QString platformName(BinaryPlatform platform);

/// The name that the platform's tools use; "cpu 7.3" for a type without a name.
QString architectureName(quint32 cpuType, quint32 cpuSubtype);

/// "clang", "swift", "ld", "lld"; "tool 9" for a number without a name.
QString toolName(quint32 tool);

/// "executable", "dynamic library" ... as one word: "execute", "dylib", "bundle", "object", "dylinker", "dsym"; "type
/// 42".
QString fileTypeName(BinaryFileType type);

} // namespace lumora
