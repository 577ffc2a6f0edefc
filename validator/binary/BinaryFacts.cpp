// SPDX-License-Identifier: MIT
#include "BinaryFacts.h"

#include <algorithm>
#include <array>
#include <string_view>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct CpuName
{
    quint32 type;
    quint32 subtype;
    const char *name;
};

constexpr std::array cpuNames{
    CpuName{7, 3, "i386"},
    CpuName{0x01000007, 3, "x86_64"},
    CpuName{0x01000007, 8, "x86_64h"},
    CpuName{12, 5, "armv4t"},
    CpuName{12, 6, "armv6"},
    CpuName{12, 7, "armv5e"},
    CpuName{12, 8, "xscale"},
    CpuName{12, 9, "armv7"},
    CpuName{12, 11, "armv7s"},
    CpuName{12, 12, "armv7k"},
    CpuName{12, 14, "armv6m"},
    CpuName{12, 15, "armv7m"},
    CpuName{12, 16, "armv7em"},
    CpuName{0x0100000C, 0, "arm64"},
    CpuName{0x0100000C, 1, "arm64"},
    CpuName{0x0100000C, 2, "arm64e"},
    CpuName{0x0200000C, 0, "arm64_32"},
    CpuName{0x0200000C, 1, "arm64_32"},
    CpuName{18, 0, "ppc"},
    CpuName{0x01000012, 0, "ppc64"},
};

constexpr std::array platformNames{
    "",
    "macos",
    "ios",
    "tvos",
    "watchos",
    "bridgeos",
    "maccatalyst",
    "ios-simulator",
    "tvos-simulator",
    "watchos-simulator",
    "driverkit",
    "visionos",
    "visionos-simulator",
};

bool holds(const QByteArrayList &sorted, const QByteArray &name)
{
    return std::binary_search(sorted.begin(), sorted.end(), name);
}

} // namespace

QString BinaryVersion::text() const
{
    const QString two = QString::number(major()) + u'.' + QString::number(minor());
    return patch() == 0 ? two : QString(two + u'.' + QString::number(patch()));
}

bool BinarySlice::imports(const QByteArray &symbol) const
{
    return holds(importedSymbols, symbol);
}

bool BinarySlice::importsClass(const QByteArray &name) const
{
    return imports("_OBJC_CLASS_$_" + name) || imports(".objc_class_name_" + name);
}

bool BinarySlice::namesSelector(const QByteArray &name) const
{
    return holds(objectiveCSelectors, name);
}

const BinarySegment *BinarySlice::segment(const QByteArray &name) const
{
    const auto found = std::ranges::find(segments, name, &BinarySegment::name);
    return found == segments.end() ? nullptr : &*found;
}

const BinarySection *BinarySlice::section(const QByteArray &name) const
{
    for (const BinarySegment &each : segments) {
        const auto found = std::ranges::find(each.sections, name, &BinarySection::name);
        if (found != each.sections.end())
            return &*found;
    }
    return nullptr;
}

bool BinarySlice::usesSwift() const
{
    return std::ranges::any_of(libraries, [](const LinkedLibrary &library) {
        return library.path.startsWith("/usr/lib/swift/"_L1) || library.path.startsWith("@rpath/libswift"_L1);
    });
}

bool BinarySlice::usesAutomaticReferenceCounting() const
{
    return imports("_objc_release") || imports("_objc_storeStrong");
}

QString platformName(BinaryPlatform platform)
{
    const auto number = static_cast<std::size_t>(platform);
    return number < platformNames.size() ? QString::fromLatin1(platformNames[number]) : QString();
}

QString architectureName(quint32 cpuType, quint32 cpuSubtype)
{
    const auto found = std::ranges::find_if(
        cpuNames, [&](const CpuName &cpu) { return cpu.type == cpuType && cpu.subtype == cpuSubtype; });
    if (found != cpuNames.end())
        return QString::fromLatin1(found->name);
    return u"cpu %1.%2"_s.arg(cpuType).arg(cpuSubtype);
}

QString toolName(quint32 tool)
{
    constexpr std::array names{"", "clang", "swift", "ld", "lld"};
    return tool > 0 && tool < names.size() ? QString::fromLatin1(names[tool]) : u"tool %1"_s.arg(tool);
}

QString fileTypeName(BinaryFileType type)
{
    switch (type) {
    case BinaryFileType::Object:
        return u"object"_s;
    case BinaryFileType::Execute:
        return u"execute"_s;
    case BinaryFileType::Dylib:
        return u"dylib"_s;
    case BinaryFileType::Dylinker:
        return u"dylinker"_s;
    case BinaryFileType::Bundle:
        return u"bundle"_s;
    case BinaryFileType::DebugSymbols:
        return u"dsym"_s;
    }
    return u"type %1"_s.arg(static_cast<quint32>(type));
}

} // namespace lumora
