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

/// The folder and the means of an inspection. Only one inspection at a time may use a folder.
struct InspectionSite
{
    QString workFolder; ///< the package is unpacked to `extractionFolder` in it
    const ProfileDecoder &profileDecoder;
    ExtractionLimits limits = {};
    std::stop_token stop = {}; ///< ends the extraction early; then nothing is read
    int iconScale = 1;         ///< pixels of the app's icon for each point
};

/// The folder of the unpacked package, and the part of it with the app; relative to the work folder.
inline constexpr QLatin1StringView extractionFolder("Documents/app");
inline constexpr QLatin1StringView payloadFolder("Documents/app/Payload/");

/// The result of the unpacking or the reading. The readable part is always there.
struct Extraction
{
    Outcome outcome = Done{}; ///< the archive could not be opened or read to its end, or exceeded a limit
    QStringList damagedEntries;
};

/// The results about the icons of an app.
struct IconFindings
{
    QList<int> missing; ///< edge lengths, in the order of the required list
    QImage appIcon;     ///< the picture that represents the app, null when the bundle has none
};

/// The results of the artwork checks, and the picture that represents the app.
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

/// Receives the results of an inspection as they come, on the inspecting thread.
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

    /// The first step for a package that must be unpacked: all others follow, and the payload is removed at the end.
    PackageReport unzipApp(const InspectionSite &site);
    /// The first step for a package that is read in place.
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
    int m_iconScale = 1;
};

/// True when the path's extension is exactly "ipa".
bool isPackageName(const QString &path);

/// Unpacks the package and inspects it.
PackageReport inspectPackage(const QString &ipaPath, const InspectionSite &site);
/// Inspects the package in place. `reading` is the result of `readAll` for the same source.
PackageReport inspectPackage(const PackageSource &source, const WholeReading &reading, const ProfileDecoder &decoder);

/// The parts of the steps.
Extraction extractPackage(const QString &ipaPath, const InspectionSite &site);
PackageFacts readBundle(const QString &ipaPath, const PackageSource &source, const ProfileDecoder &decoder);
IconFindings validateAppIcons(const PackageFacts &facts, const PackageSource &source, int iconScale = 1);
QList<QSize> validateAppDefaults(const PackageFacts &facts, const PackageSource &source);

/// `Done` for a report about an app; otherwise the archive's failure, or the failure that it has no app.
Outcome reportOutcome(const PackageReport &report);

} // namespace lumora
