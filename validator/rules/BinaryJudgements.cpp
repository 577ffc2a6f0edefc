// SPDX-License-Identifier: MIT
#include "Judging.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct SdkDemand
{
    QDate since;
    int major = 0;
};

constexpr QLatin1StringView privateFolder("/System/Library/PrivateFrameworks/");
/// Functions that lie in public libraries, or are looked up by name, but are not for apps.
constexpr const char *privateSymbols[] = {
    "_MGCopyAnswer",
    "_UIGetScreenImage",
    "_SBSCopyFrontmostApplicationDisplayIdentifier",
    "_SBSSpringBoardServerPort",
    "_MobileInstallationInstall",
    "_MobileInstallationLookup",
    "_OBJC_CLASS_$_LSApplicationWorkspace",
    "_OBJC_CLASS_$_LSApplicationProxy",
};

QVersionNumber versionNumber(const BinaryVersion &version)
{
    return QVersionNumber(version.major(), version.minor());
}

Judgement sdkAtLeast(const PackageContents &contents, const SdkDemand &demand)
{
    const QVersionNumber sdk = sdkOf(contents);
    if (sdk.isNull())
        return cannotBeKnown(worded("FOUND_NO_SDK"));
    if (sdk.majorVersion() >= demand.major)
        return holds();
    return brokenBy(
        {{contents.app()->executable, worded("FOUND_OLD_SDK", {sdk.toString(), QString::number(demand.major),
                                                               demand.since.toString(u"yyyy-MM"_s)})}});
}

bool isSimulator(BinaryPlatform platform)
{
    return platform == BinaryPlatform::IosSimulator || platform == BinaryPlatform::TvOSSimulator ||
           platform == BinaryPlatform::WatchOSSimulator || platform == BinaryPlatform::VisionOSSimulator;
}

QStringList foldersIn(const PackageContents &contents, const QString &extension, const QString &folder)
{
    const QString mark = extension + u'/' + folder + u'/';
    QStringList found;
    for (const auto &[path, size] : contents.files) {
        const qsizetype at = path.indexOf(mark);
        if (at < 0)
            continue;
        const QString place = path.first(at + mark.size() - 1);
        if (!found.contains(place))
            found += place;
    }
    return found;
}

} // namespace

Judgement judgeSdkAge(const PackageContents &contents, const RuleSettings &settings)
{
    if (!isPhoneApp(contents))
        return notApplicable(worded("FOUND_NO_PHONE_OR_PAD"));
    // The day within the month is not certain, so each date counts from the end of its month.
    const SdkDemand demands[] = {{QDate(2026, 4, 30), 26}, {QDate(2025, 4, 30), 18}};
    for (const SdkDemand &demand : demands) {
        if (settings.on > demand.since)
            return sdkAtLeast(contents, demand);
    }
    return notApplicable(worded("FOUND_UNKNOWN_DAY"));
}

Judgement judgeSdkAgeNext(const PackageContents &contents, const RuleSettings &settings)
{
    if (!isPhoneApp(contents))
        return notApplicable(worded("FOUND_NO_PHONE_OR_PAD"));
    const SdkDemand demand{QDate(2027, 4, 30), 27};
    return settings.on > demand.since ? sdkAtLeast(contents, demand) : notApplicable(worded("FOUND_NOT_ASKED"));
}

Judgement judgeExecutable(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    for (const PackageBundle *bundle : codeBundles(contents)) {
        if (!bundle->info || bundle->kind == BundleKind::WatchApp)
            continue;
        const PackageBinary *binary = contents.binaryOf(*bundle);
        if (bundle->executable.isEmpty())
            bad += Evidence{infoPath(*bundle), worded("FOUND_NO_EXECUTABLE_KEY")};
        else if (binary == nullptr)
            bad += Evidence{bundle->executable,
                            contents.holds(bundle->executable) ? worded("FOUND_NO_MACHO") : worded("FOUND_NOT_THERE")};
    }
    for (const PackageBinary &binary : contents.binaries) {
        const bool damaged =
            !binary.facts.faults.isEmpty() || binary.facts.slices.isEmpty() ||
            std::ranges::any_of(binary.facts.slices, [](const BinarySlice &slice) {
                return std::ranges::any_of(slice.faults, [](BinaryFault fault) {
                    return fault != BinaryFault::TooManySymbols && fault != BinaryFault::DamagedBindings;
                });
            });
        if (damaged)
            bad += Evidence{binary.path, worded("FOUND_LOAD_COMMANDS")};
    }
    return brokenBy(bad);
}

Judgement judgeSimulatorSlices(const PackageContents &contents, const RuleSettings &)
{
    if (isMacApp(contents))
        return notApplicable(worded("FOUND_MAC_APP"));
    QList<Evidence> slices;
    for (const PackageBinary &binary : contents.binaries) {
        for (const BinarySlice &slice : binary.facts.slices) {
            const bool simulator = !slice.targets.isEmpty() && isSimulator(slice.targets.first().platform);
            if (simulator || slice.architecture == "i386"_L1 || slice.architecture.startsWith("x86_64"_L1))
                slices += Evidence{binary.path, worded("FOUND_SIMULATOR_SLICE", {slice.architecture})};
        }
    }
    return brokenBy(slices);
}

Judgement judgeAlignment(const PackageContents &contents, const RuleSettings &)
{
    constexpr quint64 smallestPage = 0x1000;
    QList<Evidence> segments;
    for (const PackageBinary &binary : contents.binaries) {
        for (const BinarySlice &slice : binary.facts.slices) {
            if (slice.fileType == BinaryFileType::Object)
                continue;
            for (const BinarySegment &segment : slice.segments) {
                if (segment.fileSize > 0 &&
                    (segment.fileOffset % smallestPage != 0 || segment.address % smallestPage != 0))
                    segments += Evidence{binary.path, worded("FOUND_NOT_ALIGNED",
                                                             {QString::fromLatin1(segment.name), slice.architecture})};
            }
        }
    }
    return brokenBy(segments);
}

Judgement judgeBitcode(const PackageContents &contents, const RuleSettings &)
{
    bool known = false;
    const int xcode = contents.app()->text(u"DTXcode"_s).toInt(&known);
    constexpr int firstWithout = 1600;
    if (known && xcode < firstWithout)
        return notApplicable(worded("FOUND_BEFORE_XCODE_16"));
    if (!known)
        return cannotBeKnown(worded("FOUND_NO_XCODE"));
    QList<Evidence> found;
    for (const PackageBinary &binary : contents.binaries) {
        for (const BinarySlice &slice : binary.facts.slices) {
            if (slice.segment("__LLVM") != nullptr)
                found += Evidence{binary.path, worded("FOUND_BITCODE", {slice.architecture})};
        }
    }
    return brokenBy(found);
}

Judgement judgeEncryptionInfo(const PackageContents &contents, const RuleSettings &)
{
    if (!isPhoneApp(contents))
        return notApplicable(worded("FOUND_NO_PHONE_OR_PAD"));
    const PackageBinary *binary = contents.binaryOf(*contents.app());
    if (binary == nullptr)
        return cannotBeKnown(worded("FOUND_NO_BINARY"));
    QList<Evidence> bad;
    for (const BinarySlice &slice : binary->facts.slices) {
        if (!slice.encryption)
            bad += Evidence{binary->path, worded("FOUND_NO_ENCRYPTION_INFO", {slice.architecture})};
        else if (slice.isEncrypted())
            bad += Evidence{binary->path, worded("FOUND_ENCIPHERED", {slice.architecture})};
    }
    return brokenBy(bad);
}

Judgement judgeWebView(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> uses;
    for (const PackageBinary &binary : contents.binaries) {
        if (std::ranges::any_of(binary.facts.slices,
                                [](const BinarySlice &slice) { return slice.importsClass("UIWebView"); }))
            uses += Evidence{binary.path, worded("FOUND_WEB_VIEW")};
    }
    return brokenBy(uses);
}

Judgement judgePrivateNames(const PackageContents &contents, const RuleSettings &)
{
    if (isMacApp(contents))
        return notApplicable(worded("FOUND_MAC_APP"));
    QList<Evidence> uses;
    for (const PackageBinary &binary : contents.binaries) {
        QStringList found;
        for (const BinarySlice &slice : binary.facts.slices) {
            for (const LinkedLibrary &library : slice.libraries) {
                const QString name = library.path.section(u'/', -1);
                if (library.path.startsWith(privateFolder) && !found.contains(name)) {
                    found += name;
                    uses += Evidence{binary.path, worded("FOUND_PRIVATE_FRAMEWORK", {library.path})};
                }
            }
            for (const char *symbol : privateSymbols) {
                const QString name = QString::fromLatin1(symbol);
                if (slice.imports(symbol) && !found.contains(name)) {
                    found += name;
                    uses += Evidence{binary.path, worded("FOUND_PRIVATE_SYMBOL", {name})};
                }
            }
        }
    }
    return brokenBy(uses);
}

Judgement judgeFrameworkMinimum(const PackageContents &contents, const RuleSettings &)
{
    if (!isPhoneApp(contents))
        return notApplicable(worded("FOUND_NO_PHONE_OR_PAD"));
    QList<Evidence> bad;
    bool found = false;
    for (const PackageBundle &bundle : contents.bundles) {
        if (bundle.kind != BundleKind::Framework || !bundle.info)
            continue;
        found = true;
        const QVersionNumber minimum = minimumSystem(bundle);
        if (minimum.isNull())
            bad += Evidence{infoPath(bundle), worded("FOUND_NO_MINIMUM")};
        else if (minimum < QVersionNumber(8))
            bad += Evidence{infoPath(bundle), worded("FOUND_MINIMUM_IS", {minimum.toString()})};
    }
    return found ? brokenBy(bad) : notApplicable(worded("FOUND_NO_FRAMEWORK"));
}

Judgement judgeFrameworkBinaryMinimum(const PackageContents &contents, const RuleSettings &)
{
    const QVersionNumber appMinimum = minimumSystem(*contents.app());
    QList<Evidence> bad;
    bool found = false;
    for (const PackageBundle &bundle : contents.bundles) {
        const PackageBinary *binary = contents.binaryOf(bundle);
        if (bundle.kind != BundleKind::Framework || binary == nullptr)
            continue;
        found = true;
        const QVersionNumber stated = minimumSystem(bundle);
        for (const BinarySlice &slice : binary->facts.slices) {
            if (slice.targets.isEmpty())
                continue;
            const QVersionNumber real = versionNumber(slice.targets.first().minimumOS);
            if (!stated.isNull() &&
                real.normalized() != QVersionNumber(stated.majorVersion(), stated.minorVersion()).normalized())
                bad += Evidence{binary->path, worded("FOUND_BUILT_OTHERWISE", {real.toString(), stated.toString()})};
            else if (!appMinimum.isNull() && real > appMinimum)
                bad +=
                    Evidence{binary->path, worded("FOUND_BUILT_FOR_NEWER", {real.toString(), appMinimum.toString()})};
        }
    }
    return found ? brokenBy(bad) : notApplicable(worded("FOUND_NO_FRAMEWORK"));
}

Judgement judgeFrameworkFileType(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    bool found = false;
    for (const PackageBundle &bundle : contents.bundles) {
        if (bundle.kind != BundleKind::Framework)
            continue;
        found = true;
        const PackageBinary *binary = contents.binaryOf(bundle);
        if (contents.staticArchives.contains(bundle.executable))
            bad += Evidence{bundle.executable, worded("FOUND_STATIC_LIBRARY")};
        if (binary == nullptr)
            continue;
        for (const BinarySlice &slice : binary->facts.slices) {
            if (slice.fileType != BinaryFileType::Dylib)
                bad += Evidence{binary->path, worded("FOUND_FILE_TYPE", {fileTypeName(slice.fileType)})};
        }
    }
    return found ? brokenBy(bad) : notApplicable(worded("FOUND_NO_FRAMEWORK"));
}

Judgement judgeSwiftEntry(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    bool found = false;
    for (const PackageBundle &bundle : contents.bundles) {
        const PackageBinary *binary = contents.binaryOf(bundle);
        if (bundle.kind != BundleKind::Extension || binary == nullptr || !bundle.has(u"EXAppExtensionAttributes"_s))
            continue;
        found = true;
        for (const BinarySlice &slice : binary->facts.slices) {
            if (slice.section("__swift5_entry") == nullptr)
                bad += Evidence{binary->path, worded("FOUND_NO_SWIFT_ENTRY", {slice.architecture})};
        }
    }
    return found ? brokenBy(bad) : notApplicable(worded("FOUND_NO_SUCH_EXTENSION"));
}

Judgement judgeLooseCode(const PackageContents &contents, const RuleSettings &)
{
    const PackageBundle &app = *contents.app();
    if (isMacApp(contents))
        return notApplicable(worded("FOUND_MAC_APP"));
    QList<Evidence> loose;
    for (const PackageBinary &binary : contents.binaries) {
        if (!binary.path.startsWith(app.path + u'/'))
            continue;
        const bool isExecutable = std::ranges::any_of(
            contents.bundles, [&](const PackageBundle &bundle) { return bundle.executable == binary.path; });
        const bool isSwift =
            binary.path.startsWith(app.path + u"/Frameworks/libswift") && binary.path.endsWith(".dylib"_L1);
        if (!isExecutable && !isSwift)
            loose += Evidence{binary.path, worded("FOUND_LOOSE_CODE")};
    }
    for (const QString &path : contents.staticArchives)
        loose += Evidence{path, worded("FOUND_STATIC_LIBRARY")};
    for (const QString &path : foldersIn(contents, u".framework"_s, u"Versions"_s))
        loose += Evidence{path, worded("FOUND_MAC_LAYOUT")};
    return brokenBy(loose);
}

Judgement judgeNestedFrameworks(const PackageContents &contents, const RuleSettings &)
{
    if (isMacApp(contents))
        return notApplicable(worded("FOUND_MAC_APP"));
    QList<Evidence> nested;
    for (const QString &extension : {u".framework"_s, u".appex"_s}) {
        for (const QString &path : foldersIn(contents, extension, u"Frameworks"_s))
            nested += Evidence{path, worded("FOUND_NESTED_FRAMEWORKS")};
    }
    return brokenBy(nested);
}

Judgement judgeSwiftSupport(const PackageContents &contents, const RuleSettings &)
{
    const PackageBundle &app = *contents.app();
    if (!contents.isArchive || !app.profile || app.profile->kind != ProfileKind::AppStore)
        return notApplicable(worded("FOUND_NO_STORE_ARCHIVE"));
    QList<Evidence> missing;
    bool found = false;
    for (const PackageBinary &binary : contents.binaries) {
        const QString folder = app.path + u"/Frameworks/";
        if (!binary.path.startsWith(folder + u"libswift"))
            continue;
        found = true;
        const QString name = binary.path.mid(folder.size());
        if (!contents.holds(u"SwiftSupport/iphoneos/"_s + name))
            missing += Evidence{binary.path, worded("FOUND_NO_SWIFT_SUPPORT", {name})};
        for (const BinarySlice &slice : binary.facts.slices) {
            const QVersionNumber built =
                slice.targets.isEmpty() ? QVersionNumber() : versionNumber(slice.targets.first().minimumOS);
            const QVersionNumber minimum = minimumSystem(app);
            if (!minimum.isNull() && built > minimum)
                missing +=
                    Evidence{binary.path, worded("FOUND_BUILT_FOR_NEWER", {built.toString(), minimum.toString()})};
        }
    }
    return found ? brokenBy(missing) : notApplicable(worded("FOUND_NO_SWIFT_LIBRARIES"));
}

} // namespace lumora
