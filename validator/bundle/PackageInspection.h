// SPDX-License-Identifier: MIT
#pragma once

#include "ArtworkChecks.h"
#include "PackageFacts.h"
#include "ProfileDecoder.h"
#include "foundation/Result.h"
#include "validator/archive/ExtractionLimits.h"

#include <QImage>
#include <QString>
#include <QStringList>

#include <optional>
#include <stop_token>

namespace lumora
{

/// Where an inspection works and what it may use. One inspection at a time works in one folder.
struct InspectionSite
{
    QString workFolder; ///< the package is unpacked to `extractionFolder` in it; empty for the process's current folder
    const ProfileDecoder &profileDecoder;
    ExtractionLimits limits = {};
    std::stop_token stop = {}; ///< ends the extraction early
};

/// Where a package is unpacked to, and the part of it that holds the app; relative to the work folder.
inline constexpr QLatin1StringView extractionFolder("Documents/app");
inline constexpr QLatin1StringView payloadFolder("Documents/app/Payload/");

/// How the unpacking went. What could be unpacked is there in every case.
struct Extraction
{
    std::optional<Failure> failure; ///< the archive could not be opened or read to its end, or passed a limit
    QStringList damagedEntries;
};

/// What the look at an app's icons comes to.
struct IconFindings
{
    QList<int> missing; ///< edge lengths, in the order of the required list
    QImage appIcon;     ///< the picture that stands for the app, null when the bundle has none
};

/// What the artwork checks found, and the picture that stands for the app.
struct ArtworkReport
{
    ArtworkFindings findings;
    QImage appIcon; ///< null when the bundle has none
};

/// True when the path's extension is exactly "ipa".
bool isPackageName(const QString &path);

/// The steps of an inspection, in their order.
Extraction extractPackage(const QString &ipaPath, const InspectionSite &site);
PackageFacts readBundle(const QString &ipaPath, const InspectionSite &site);
IconFindings validateAppIcons(const PackageFacts &facts, const InspectionSite &site);
QList<QSize> validateAppDefaults(const PackageFacts &facts, const InspectionSite &site);
/// Both artwork checks.
ArtworkReport checkArtwork(const PackageFacts &facts, const InspectionSite &site);
/// Removes the unpacked payload; what else the package held stays in the work folder.
void removePayload(const InspectionSite &site);

/// Everything about one package.
struct PackageReport
{
    Extraction extraction;
    PackageFacts facts;
    ArtworkReport artwork;
    bool hasApp = false;
};

/// All steps at once.
PackageReport inspectPackage(const QString &ipaPath, const InspectionSite &site);

/// Why the report is about no app: the archive's failure, or that it holds none. Nothing when there is one.
std::optional<Failure> reportFailure(const PackageReport &report);

} // namespace lumora
