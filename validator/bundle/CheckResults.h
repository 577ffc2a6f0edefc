// SPDX-License-Identifier: MIT
#pragma once

#include "ArtworkChecks.h"
#include "PackageFacts.h"

#include <QList>
#include <QStringList>

namespace lumora
{

/// The checks of a package, in the order of a report.
enum class Check {
    AppIcons,
    LaunchImages,
    BundleIdentifier,
    Localizations,
    UrlSchemes,    ///< informs only: absent if the app has none, never failed
    FacebookAppId, ///< like the schemes
};

enum class CheckVerdict { Passed, Failed, Absent };

struct CheckResult
{
    Check check = Check::AppIcons;
    CheckVerdict verdict = CheckVerdict::Passed;
    QStringList sizes; ///< for a failed check of pictures: the missing sizes, "57x57"
};

QList<CheckResult> checkResults(const PackageFacts &facts, const ArtworkFindings &artwork);

/// The number of checks with a subject, and how many of these failed.
struct CheckSum
{
    int failed = 0;
    int judged = 0;

    bool operator==(const CheckSum &) const = default;
};

CheckSum sumOf(const QList<CheckResult> &results);

} // namespace lumora
