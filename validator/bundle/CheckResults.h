// SPDX-License-Identifier: MIT
#pragma once

#include "ArtworkChecks.h"
#include "PackageFacts.h"

#include <QList>
#include <QStringList>

namespace lumora
{

/// What a package is checked for, in the order of a report.
enum class Check {
    AppIcons,
    LaunchImages,
    BundleIdentifier,
    Localizations,
    UrlSchemes,    ///< informs: absent where the app has none, never failed
    FacebookAppId, ///< as the schemes
};

enum class CheckVerdict { Passed, Failed, Absent };

struct CheckResult
{
    Check check = Check::AppIcons;
    CheckVerdict verdict = CheckVerdict::Passed;
    QStringList sizes; ///< of a failed check of pictures: the missing sizes, "57x57"
};

QList<CheckResult> checkResults(const PackageFacts &facts, const ArtworkFindings &artwork);

/// How many checks had something to judge, and how many of these failed.
struct CheckSum
{
    int failed = 0;
    int judged = 0;

    bool operator==(const CheckSum &) const = default;
};

CheckSum sumOf(const QList<CheckResult> &results);

} // namespace lumora
