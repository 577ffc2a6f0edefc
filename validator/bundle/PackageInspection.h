// SPDX-License-Identifier: MIT
#pragma once

#include "ArtworkChecks.h"
#include "PackageFacts.h"
#include "ProfileDecoder.h"
#include "foundation/Result.h"
#include "validator/archive/ExtractionLimits.h"
#include "validator/archive/PackageSource.h"

#include <QImage>
#include <QString>
#include <QStringList>

#include <stop_token>

namespace lumora
{

/// Where a package is unpacked and what its inspection may use. One inspection at a time works in one folder.
struct InspectionSite
{
    QString workFolder; ///< the package is unpacked to `extractionFolder` in it
    const ProfileDecoder &profileDecoder;
    ExtractionLimits limits = {};
    std::stop_token stop = {}; ///< ends the extraction early, and nothing is read then
};

/// Where a package is unpacked to, and the part of it that holds the app; relative to the work folder.
inline constexpr QLatin1StringView extractionFolder("Documents/app");
inline constexpr QLatin1StringView payloadFolder("Documents/app/Payload/");

/// How the unpacking or the reading went. What could be read is there in every case.
struct Extraction
{
    Outcome outcome = Done{}; ///< the archive could not be opened or read to its end, or passed a limit
    QStringList damagedEntries;
};

/// What the icons of an app come to.
struct IconFindings
{
    QList<int> missing; ///< edge lengths, in the order of the required list
    QImage appIcon;     ///< the picture that represents the app, null when the bundle has none
};

/// What the artwork checks found, and the picture that represents the app.
struct ArtworkReport
{
    ArtworkFindings findings;
    QImage appIcon; ///< null when the bundle has none
};

/// Everything about one package.
struct PackageReport
{
    Extraction extraction;
    PackageFacts facts;
    ArtworkReport artwork;
    bool hasApp = false;
};

/// Sees the results of an inspection as they come, on the thread that inspects.
class InspectionObserver
{
public:
    virtual ~InspectionObserver() = default;

    virtual void gathered(const PackageFacts &, const Extraction &) {}
    virtual void validated(const ArtworkReport &) {}
};

/// One package on its way through the steps of an inspection. Each step calls the next one.
class PackageInspection
{
public:
    PackageInspection(QString ipaPath, const ProfileDecoder &decoder, InspectionObserver &observer);

    /// The first step for a package that is unpacked: all others follow, and the payload is removed at the end.
    PackageReport unzipApp(const InspectionSite &site);
    /// The first step for a package that is read where it lies.
    PackageReport fetchAppContents(const PackageSource &source, const WholeReading &reading);

private:
    void beginGatheringInfo(const InspectionSite &site);
    void fetchAppContents(const PackageSource &source);
    void startValidate(const PackageSource &source);
    static void doneGatheringInfo(const InspectionSite &site);

    QString m_ipaPath;
    const ProfileDecoder &m_decoder;
    InspectionObserver &m_observer;
    PackageReport m_report;
};

/// True when the path's extension is exactly "ipa".
bool isPackageName(const QString &path);

/// Unpacks the package and inspects it.
PackageReport inspectPackage(const QString &ipaPath, const InspectionSite &site);
/// Inspects the package where it lies. `reading` is what `readAll` said of the same source.
PackageReport inspectPackage(const PackageSource &source, const WholeReading &reading, const ProfileDecoder &decoder);

/// The parts of the steps.
Extraction extractPackage(const QString &ipaPath, const InspectionSite &site);
PackageFacts readBundle(const QString &ipaPath, const PackageSource &source, const ProfileDecoder &decoder);
IconFindings validateAppIcons(const PackageFacts &facts, const PackageSource &source);
QList<QSize> validateAppDefaults(const PackageFacts &facts, const PackageSource &source);

/// `Done` for a report about an app. Else the archive's failure, or that there is no app in it.
Outcome reportOutcome(const PackageReport &report);

} // namespace lumora
