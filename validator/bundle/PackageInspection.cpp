// SPDX-License-Identifier: MIT
#include "PackageInspection.h"

#include "BundleContents.h"
#include "BundleImages.h"
#include "PropertyList.h"
#include "foundation/Log.h"
#include "foundation/WholeFile.h"
#include "validator/archive/ZipArchive.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QString inWorkFolder(const InspectionSite &site, const QString &relative)
{
    return site.workFolder.isEmpty() ? relative : QString(site.workFolder + u'/' + relative);
}

/// The folder's names; none when it cannot be listed, which is logged.
QStringList loggedListing(const QString &folder)
{
    auto listing = folderListing(folder);
    if (listing)
        return std::move(listing).value();
    logLine(u"Content error: "_s + listing.failure().detail);
    return {};
}

/// What keeps the path from being an archive at all; asked first, because opening a pipe would wait for its writer.
std::optional<Failure> unopenable(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return Failure{FailureCode::NotFound, path, {}};
    if (info.isDir())
        return Failure{FailureCode::IsFolder, path, {}};
    if (!info.isFile())
        return Failure{FailureCode::NotAnArchive, path, u"no ordinary file"_s};
    if (!info.isReadable())
        return Failure{FailureCode::NoPermission, path, {}};
    return std::nullopt;
}

} // namespace

bool isPackageName(const QString &path)
{
    return pathExtension(path) == u"ipa";
}

Extraction extractPackage(const QString &ipaPath, const InspectionSite &site)
{
    if (const auto failure = unopenable(ipaPath))
        return {failure, {}};
    ZipArchive archive;
    archive.setLimits(site.limits);
    archive.setStopToken(site.stop);
    if (!archive.UnzipOpenFile(ipaPath))
        return {Failure{FailureCode::NotAnArchive, ipaPath, {}}, {}};
    archive.UnzipFileTo(inWorkFolder(site, extractionFolder), true);
    const Extraction extraction{archive.extractionFailure(), archive.damagedEntries()};
    archive.UnzipCloseFile();
    return extraction;
}

PackageFacts readBundle(const QString &ipaPath, const InspectionSite &site)
{
    PackageFacts facts;
    facts.ipaPath = ipaPath;
    const QString bundle = appBundleName(loggedListing(inWorkFolder(site, payloadFolder)));
    facts.appContentFolderPath = payloadFolder + bundle;
    if (bundle.isEmpty()) {
        facts.provisioningProfile = u""_s;
        return facts;
    }
    const QString folder = inWorkFolder(site, facts.appContentFolderPath);
    const BundleContents contents = bundleContents(loggedListing(folder));
    if (contents.hasInfoPlist) {
        const auto bytes = readWholeFile(folder + u"/Info.plist", PropertyListLimits().fileBytes);
        if (bytes)
            facts.appInfoPlist = propertyListDictionary(bytes.value());
    }
    facts.appLocalizations = contents.localizations;
    facts.appImages = contents.images;
    facts.provisioningProfile = site.profileDecoder.readProvisioningFromPath(folder + u"/embedded.mobileprovision");
    return facts;
}

IconFindings validateAppIcons(const PackageFacts &facts, const InspectionSite &site)
{
    const PlatformType platform = facts.appPlatformType();
    if (platform == PlatformType::None)
        return {};
    const QString folder = inWorkFolder(site, facts.appContentFolderPath);
    const QStringList candidates = iconCandidates(facts.appImages);
    const QList<QSize> sizes = pictureSizes(folder, candidates);
    return {missingIcons(platform, sizes), appIcon(folder, candidates, sizes, facts.minimumOSNumber())};
}

QList<QSize> validateAppDefaults(const PackageFacts &facts, const InspectionSite &site)
{
    const QString folder = inWorkFolder(site, facts.appContentFolderPath);
    const QList<QSize> sizes = pictureSizes(folder, launchImageCandidates(facts.appImages));
    return missingLaunchImages(facts.appPlatformType(), sizes);
}

ArtworkReport checkArtwork(const PackageFacts &facts, const InspectionSite &site)
{
    const IconFindings icons = validateAppIcons(facts, site);
    return {{icons.missing, validateAppDefaults(facts, site)}, icons.appIcon};
}

void removePayload(const InspectionSite &site)
{
    const QString payload = QDir::cleanPath(inWorkFolder(site, payloadFolder));
    // An archive may hold a plain file of the name.
    if (!QFile::remove(payload))
        QDir(payload).removeRecursively();
}

PackageReport inspectPackage(const QString &ipaPath, const InspectionSite &site)
{
    PackageReport report;
    report.extraction = extractPackage(ipaPath, site);
    report.facts = readBundle(ipaPath, site);
    report.hasApp = report.facts.appContentFolderPath != payloadFolder &&
                    QFileInfo(inWorkFolder(site, report.facts.appContentFolderPath)).isDir();
    report.artwork = checkArtwork(report.facts, site);
    removePayload(site);
    return report;
}

std::optional<Failure> reportFailure(const PackageReport &report)
{
    if (report.extraction.failure)
        return report.extraction.failure;
    if (!report.hasApp)
        return Failure{FailureCode::MissingContent, report.facts.ipaPath, u"no app in its Payload folder"_s};
    return std::nullopt;
}

} // namespace lumora
