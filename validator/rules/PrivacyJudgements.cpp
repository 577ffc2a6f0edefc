// SPDX-License-Identifier: MIT
#include "Judging.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// A class whose use needs a text for the user; any one of the keys is enough.
struct Purpose
{
    const char *className;
    const char *keys;
};

constexpr Purpose surePurposes[] = {
    {"AVCaptureDevice", "NSCameraUsageDescription NSMicrophoneUsageDescription"},
    {"PHPhotoLibrary", "NSPhotoLibraryUsageDescription NSPhotoLibraryAddUsageDescription"},
    {"CLLocationManager", "NSLocationWhenInUseUsageDescription NSLocationAlwaysAndWhenInUseUsageDescription "
                          "NSLocationAlwaysUsageDescription NSLocationUsageDescription"},
    {"CNContactStore", "NSContactsUsageDescription"},
};

constexpr Purpose likelyPurposes[] = {
    {"EKEventStore", "NSCalendarsUsageDescription NSCalendarsFullAccessUsageDescription "
                     "NSCalendarsWriteOnlyAccessUsageDescription NSRemindersUsageDescription "
                     "NSRemindersFullAccessUsageDescription"},
    {"CBCentralManager", "NSBluetoothAlwaysUsageDescription"},
    {"CBPeripheralManager", "NSBluetoothAlwaysUsageDescription"},
    {"LAContext", "NSFaceIDUsageDescription"},
    {"AVAudioRecorder", "NSMicrophoneUsageDescription"},
    {"NSNetServiceBrowser", "NSLocalNetworkUsageDescription"},
    {"CMMotionActivityManager", "NSMotionUsageDescription"},
    {"CMPedometer", "NSMotionUsageDescription"},
    {"SFSpeechRecognizer", "NSSpeechRecognitionUsageDescription"},
    {"ATTrackingManager", "NSUserTrackingUsageDescription"},
    {"HKHealthStore", "NSHealthShareUsageDescription NSHealthUpdateUsageDescription"},
    {"HMHomeManager", "NSHomeKitUsageDescription"},
    {"MPMediaLibrary", "NSAppleMusicUsageDescription"},
    {"INPreferences", "NSSiriUsageDescription"},
    {"NFCReaderSession", "NFCReaderUsageDescription"},
    {"NFCNDEFReaderSession", "NFCReaderUsageDescription"},
    {"NFCTagReaderSession", "NFCReaderUsageDescription"},
};

bool importsClass(const PackageBinary &binary, const char *name)
{
    return std::ranges::any_of(binary.facts.slices, [&](const BinarySlice &slice) { return slice.importsClass(name); });
}

template <std::size_t Count> Judgement judgeTexts(const PackageContents &contents, const Purpose (&purposes)[Count])
{
    const PackageBundle &app = *contents.app();
    if (!app.info)
        return cannotBeKnown(worded("FOUND_INFO_UNREADABLE"));
    QList<Evidence> missing;
    QSet<QString> said;
    for (const Purpose &purpose : purposes) {
        const QStringList keys = QString::fromLatin1(purpose.keys).split(u' ');
        if (std::ranges::any_of(keys,
                                [&](const QString &key) { return app.has(key) || !app.shownText(key).isEmpty(); }))
            continue;
        for (const PackageBinary &binary : contents.binaries) {
            if (!importsClass(binary, purpose.className) || said.contains(keys.first()))
                continue;
            said += keys.first();
            missing += Evidence{infoPath(app), worded("FOUND_NO_PURPOSE", {keys.first(), binary.path,
                                                                           QString::fromLatin1(purpose.className)})};
        }
    }
    return brokenBy(missing);
}

bool isPurpose(const QString &key)
{
    return key.endsWith("UsageDescription"_L1);
}

/// A purpose string and its place; the text may be empty.
struct SaidPurpose
{
    QString path;
    QString key;
    QString text;
};

/// The purpose strings of all code: those of the Info.plists, and those of the languages.
QList<SaidPurpose> saidPurposes(const PackageContents &contents)
{
    QList<SaidPurpose> said;
    for (const PackageBundle *bundle : codeBundles(contents)) {
        for (const QString &key : bundle->info ? bundle->info->keys() : QStringList()) {
            if (isPurpose(key))
                said += SaidPurpose{infoPath(*bundle), key, bundle->shownText(key).trimmed()};
        }
        for (auto language = bundle->localized.cbegin(); language != bundle->localized.cend(); ++language) {
            for (auto each = language->cbegin(); each != language->cend(); ++each) {
                if (isPurpose(each.key()))
                    said += SaidPurpose{bundle->localizedPath(language.key()), each.key(), each->trimmed()};
            }
        }
    }
    return said;
}

/// Whether the text is too short for a reason, or was never written. Of scripts that need no spaces, nothing is known.
bool isVague(const QString &text)
{
    constexpr qsizetype fewestWords = 3;
    static constexpr QChar lastLatin(0x24F);
    if (text.isEmpty() ||
        std::ranges::any_of(text, [](QChar letter) { return letter > lastLatin && letter.isLetter(); }))
        return false;
    return text.split(u' ', Qt::SkipEmptyParts).size() < fewestWords || text.contains("$("_L1) ||
           text.contains("lorem ipsum"_L1, Qt::CaseInsensitive);
}

/// The first symbol of the category that the binary uses; empty if there is none.
QString use(const PackageBinary &binary, const RequiredReason &category)
{
    for (const BinarySlice &slice : binary.facts.slices) {
        for (const QByteArray &symbol : QByteArray(category.symbols).split(' ')) {
            if (!symbol.isEmpty() && slice.imports(symbol))
                return QString::fromLatin1(symbol);
        }
        for (const QByteArray &selector : QByteArray(category.selectors).split(' ')) {
            if (!selector.isEmpty() && slice.namesSelector(selector))
                return QString::fromLatin1(selector);
        }
    }
    return {};
}

/// The declarations for the code of a bundle: its own, the app's, and those in resource bundles of kits that are linked
/// into the code.
QSet<QString> declaredFor(const PackageContents &contents, const PackageBundle &bundle)
{
    QSet<QString> declared;
    for (const PackageBundle &each : contents.bundles) {
        const bool speaksForIt =
            each.path == bundle.path || each.kind == BundleKind::App || each.kind == BundleKind::Resources;
        if (!speaksForIt || !each.privacy)
            continue;
        for (const QString &category : each.privacy->reasons.keys())
            declared += category;
    }
    return declared;
}

} // namespace

Judgement judgePurposes(const PackageContents &contents, const RuleSettings &)
{
    return judgeTexts(contents, surePurposes);
}

Judgement judgeLikelyPurposes(const PackageContents &contents, const RuleSettings &)
{
    return judgeTexts(contents, likelyPurposes);
}

Judgement judgeEmptyPurposes(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> empty;
    for (const SaidPurpose &each : saidPurposes(contents)) {
        if (each.text.isEmpty())
            empty += Evidence{each.path, worded("FOUND_EMPTY_KEY", {each.key})};
    }
    return brokenBy(empty);
}

Judgement judgeVaguePurposes(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> vague;
    for (const SaidPurpose &each : saidPurposes(contents)) {
        if (isVague(each.text))
            vague += Evidence{each.path, worded("FOUND_VAGUE_KEY", {each.key, each.text.left(80)})};
    }
    return brokenBy(vague);
}

Judgement judgeRequiredReasons(const PackageContents &contents, const RuleSettings &settings)
{
    if (settings.on < QDate(2024, 5, 1))
        return notApplicable(worded("FOUND_NOT_ASKED"));
    const BinaryPlatform platform = platformOf(contents);
    if (platform != BinaryPlatform::Ios && platform != BinaryPlatform::TvOS)
        return notApplicable(worded("FOUND_NO_PHONE_PAD_OR_TV"));
    QList<Evidence> missing;
    for (const PackageBundle *bundle : codeBundles(contents)) {
        const PackageBinary *binary = contents.binaryOf(*bundle);
        if (binary == nullptr)
            continue;
        const QSet<QString> declared = declaredFor(contents, *bundle);
        for (const RequiredReason &category : requiredReasons()) {
            const QString name = QString::fromLatin1(category.category);
            const QString used = declared.contains(name) ? QString() : use(*binary, category);
            if (!used.isEmpty())
                missing += Evidence{binary->path, worded("FOUND_NO_REASON", {used, name})};
        }
    }
    const bool isUnread = std::ranges::any_of(
        contents.bundles, [&contents](const PackageBundle &bundle) { return contents.isUnread(bundle.privacyPath()); });
    return isUnread && !missing.isEmpty() ? cannotBeKnown(tooLarge()) : brokenBy(missing);
}

Judgement judgePrivacyForm(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    bool found = false;
    bool isUnread = false;
    for (const PackageBundle &bundle : contents.bundles) {
        if (!bundle.hasPrivacyFile)
            continue;
        if (contents.isUnread(bundle.privacyPath())) {
            isUnread = true;
            continue;
        }
        found = true;
        if (!bundle.privacy)
            bad += Evidence{bundle.privacyPath(), worded("FOUND_UNREADABLE")};
        for (const QString &fault : bundle.privacy ? bundle.privacy->faults : QStringList())
            bad += Evidence{bundle.privacyPath(), fault};
    }
    if (bad.isEmpty() && isUnread)
        return cannotBeKnown(tooLarge());
    return found ? brokenBy(bad) : notApplicable(worded("FOUND_NO_MANIFEST"));
}

Judgement judgeListedKits(const PackageContents &contents, const RuleSettings &settings)
{
    if (settings.on < QDate(2024, 5, 1))
        return notApplicable(worded("FOUND_NOT_ASKED"));
    QList<Evidence> bad;
    bool found = false;
    for (const PackageBundle &bundle : contents.bundles) {
        if (bundle.kind != BundleKind::Framework || !isListedKit(bundle.name().chopped(10)))
            continue;
        found = true;
        if (!bundle.hasPrivacyFile)
            bad += Evidence{bundle.path, worded("FOUND_NO_PRIVACY_FILE")};
    }
    return found ? brokenBy(bad) : notApplicable(worded("FOUND_NO_LISTED_KIT"));
}

Judgement judgeKitSignatures(const PackageContents &contents, const RuleSettings &settings)
{
    const PackageBundle &app = *contents.app();
    if (settings.on < QDate(2024, 5, 1))
        return notApplicable(worded("FOUND_NOT_ASKED"));
    // Other archives come without receipts.
    if (!contents.isArchive || !app.profile || app.profile->kind != ProfileKind::AppStore)
        return notApplicable(worded("FOUND_NO_STORE_ARCHIVE"));
    QList<Evidence> bad;
    bool found = false;
    for (const PackageBundle &bundle : contents.bundles) {
        const QString kit = bundle.name().chopped(std::min<qsizetype>(bundle.name().size(), 10));
        if (bundle.kind != BundleKind::Framework || !isListedKit(kit))
            continue;
        found = true;
        const QString receipt = u"Signatures/"_s + kit + u".xcframework"_s;
        const bool isThere = std::ranges::any_of(
            contents.files, [&receipt](const PackageFile &file) { return file.path.startsWith(receipt); });
        if (!isThere)
            bad += Evidence{bundle.path, worded("FOUND_NO_RECEIPT", {receipt})};
    }
    return found ? brokenBy(bad) : notApplicable(worded("FOUND_NO_LISTED_KIT"));
}

} // namespace lumora
