// SPDX-License-Identifier: MIT
#include "PackageInspection.h"

#include "BundleContents.h"
#include "BundleImages.h"
#include "PropertyList.h"
#include "foundation/Log.h"
#include "validator/archive/FolderSource.h"
#include "validator/archive/PackageView.h"
#include "validator/archive/ZipArchive.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The path at which a source shows the app's bundle.
QString shownBundle(const PackageFacts &facts)
{
    return facts.appContentFolderPath.sliced(extractionFolder.size() + 1);
}

/// The folder's names; empty when it cannot be listed, which is logged.
QStringList loggedListing(const PackageSource &source, const QString &folder)
{
    if (!source.isFolder(folder))
        logLine(u"Content error: "_s + qt_error_string(source.find(folder) == nullptr ? ENOENT : ENOTDIR));
    return source.names(folder);
}

std::optional<QVariantMap> infoPlist(const PackageSource &source, const QString &folder)
{
    const auto bytes = source.read(folder + u"/Info.plist", PropertyListLimits().fileBytes);
    return bytes ? propertyListDictionary(bytes.value()) : std::nullopt;
}

LocalizedInfo localizedInfo(const PackageSource &source, const QString &folder, const QStringList &listing)
{
    return readLocalizedInfo(listing, [&source, &folder](const QString &path) {
        const auto bytes = source.read(folder + u'/' + path, largestStringsTable);
        return bytes ? bytes.value() : QByteArray();
    });
}

/// A package without any contents.
class NoSource final : public PackageSource
{
public:
    NoSource() : PackageSource({}, {}) {}

    Result<std::unique_ptr<EntryStream>> open(const PackageEntry &entry) const override
    {
        return Failure{FailureCode::NotFound, entry.path, {}};
    }
};

} // namespace

bool isPackageName(const QString &path)
{
    return pathExtension(path) == u"ipa";
}

Extraction extractPackage(const QString &ipaPath, const InspectionSite &site)
{
    const Outcome openable = isArchiveFile(ipaPath);
    if (!openable)
        return {openable, {}};
    ZipArchive archive;
    archive.setLimits(site.limits);
    archive.setStopToken(site.stop);
    if (!archive.UnzipOpenFile(ipaPath))
        return {Failure{FailureCode::NotAnArchive, ipaPath, {}}, {}};
    archive.UnzipFileTo(site.workFolder + u'/' + extractionFolder, true);
    const Extraction extraction{archive.extraction(), archive.damagedEntries()};
    archive.UnzipCloseFile();
    return extraction;
}

PackageFacts readBundle(const QString &ipaPath, const PackageSource &source, const ProfileDecoder &decoder)
{
    PackageFacts facts;
    facts.ipaPath = ipaPath;
    const QString bundle = appBundleName(loggedListing(source, u"Payload"_s));
    facts.appContentFolderPath = payloadFolder + bundle;
    if (bundle.isEmpty()) {
        facts.provisioningProfile = u""_s;
        return facts;
    }
    const QString folder = shownBundle(facts);
    facts.hasApp = source.isFolder(folder);
    const QStringList listing = loggedListing(source, folder);
    const BundleContents contents = bundleContents(listing);
    facts.appImages = contents.images;
    const QString macFolder = folder + u"/Contents";
    facts.isMacApp = !contents.hasInfoPlist && source.find(macFolder + u"/Info.plist") != nullptr;
    if (facts.isMacApp) {
        const QStringList resources = source.names(macFolder + u"/Resources");
        facts.appInfoPlist = infoPlist(source, macFolder);
        facts.localizedInfo = localizedInfo(source, macFolder + u"/Resources", resources);
        facts.appLocalizations = bundleContents(resources).localizations;
        facts.provisioningProfile = decoder.readProvisioning(source, macFolder + u"/embedded.provisionprofile");
        return facts;
    }
    if (contents.hasInfoPlist)
        facts.appInfoPlist = infoPlist(source, folder);
    facts.localizedInfo = localizedInfo(source, folder, listing);
    facts.appLocalizations = contents.localizations;
    facts.provisioningProfile = decoder.readProvisioning(source, folder + u"/embedded.mobileprovision");
    return facts;
}

IconFindings validateAppIcons(const PackageFacts &facts, const PackageSource &source, int iconScale)
{
    const PlatformType platform = facts.appPlatformType();
    if (platform == PlatformType::None)
        return {};
    const QString folder = shownBundle(facts);
    const QStringList candidates = iconCandidates(facts.appImages);
    const QList<QSize> sizes = pictureSizes(source, folder, candidates);
    return {missingIcons(platform, sizes),
            appIcon(source, folder, candidates, sizes, facts.minimumOSNumber(), iconScale)};
}

QList<QSize> validateAppDefaults(const PackageFacts &facts, const PackageSource &source)
{
    const QList<QSize> sizes = pictureSizes(source, shownBundle(facts), launchImageCandidates(facts.appImages));
    return missingLaunchImages(facts.appPlatformType(), sizes);
}

PackageInspection::PackageInspection(QString ipaPath, const ProfileDecoder &decoder, InspectionObserver &observer)
    : m_ipaPath(std::move(ipaPath)), m_decoder(decoder), m_observer(observer)
{
}

PackageReport PackageInspection::unzipApp(const InspectionSite &site)
{
    m_iconScale = site.iconScale;
    m_report.extraction = extractPackage(m_ipaPath, site);
    beginGatheringInfo(site);
    return std::move(m_report);
}

void PackageInspection::beginGatheringInfo(const InspectionSite &site)
{
    if (!site.stop.stop_requested()) {
        const auto unpacked = FolderSource::open(site.workFolder + u'/' + extractionFolder, FolderLayout::Package);
        if (unpacked)
            fetchAppContents(*unpacked.value());
        else
            fetchAppContents(NoSource());
    }
    doneGatheringInfo(site);
}

PackageReport PackageInspection::fetchAppContents(const PackageSource &source, const WholeReading &reading)
{
    m_report.extraction.damagedEntries = reading.damaged;
    if (source.failure())
        m_report.extraction.outcome = *source.failure();
    else if (reading.failure)
        m_report.extraction.outcome = *reading.failure;
    fetchAppContents(source);
    return std::move(m_report);
}

void PackageInspection::fetchAppContents(const PackageSource &source)
{
    m_report.facts = readBundle(m_ipaPath, source, m_decoder);
    m_report.hasApp = m_report.facts.hasApp;
    m_observer.gathered(m_report.facts, m_report.extraction);
    startValidate(source);
}

void PackageInspection::startValidate(const PackageSource &source)
{
    const IconFindings icons = validateAppIcons(m_report.facts, source, m_iconScale);
    m_report.artwork = {{icons.missing, validateAppDefaults(m_report.facts, source)}, icons.appIcon};
    m_observer.validated(m_report.artwork);
}

void PackageInspection::doneGatheringInfo(const InspectionSite &site)
{
    const QString payload = QDir::cleanPath(site.workFolder + u'/' + payloadFolder);
    // An archive may contain a plain file of that name.
    if (!QFile::remove(payload))
        QDir(payload).removeRecursively();
}

PackageReport inspectPackage(const QString &ipaPath, const InspectionSite &site)
{
    InspectionObserver nobody;
    return PackageInspection(ipaPath, site.profileDecoder, nobody).unzipApp(site);
}

PackageReport inspectPackage(const PackageSource &source, const WholeReading &reading, const ProfileDecoder &decoder)
{
    InspectionObserver nobody;
    return PackageInspection(source.path(), decoder, nobody).fetchAppContents(source, reading);
}

Outcome reportOutcome(const PackageReport &report)
{
    if (!report.extraction.outcome)
        return report.extraction.outcome;
    if (!report.hasApp)
        return Failure{FailureCode::MissingContent, report.facts.ipaPath, "DETAIL_NO_APP"};
    return Done{};
}

} // namespace lumora
