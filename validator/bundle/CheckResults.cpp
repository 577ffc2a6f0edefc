// SPDX-License-Identifier: MIT
#include "CheckResults.h"

#include "MetadataChecks.h"

namespace lumora
{

namespace
{

CheckVerdict judged(bool valid)
{
    return valid ? CheckVerdict::Passed : CheckVerdict::Failed;
}

CheckVerdict informing(bool present)
{
    return present ? CheckVerdict::Passed : CheckVerdict::Absent;
}

} // namespace

QList<CheckResult> checkResults(const PackageFacts &facts, const ArtworkFindings &artwork)
{
    QStringList icons;
    for (const int edge : artwork.missingIcons)
        icons += sizeText(QSize(edge, edge));
    QStringList launchImages;
    for (const QSize size : artwork.missingLaunchImages)
        launchImages += sizeText(size);
    const MetadataVerdicts verdicts = metadataVerdicts(facts);
    return {
        {Check::AppIcons, judged(icons.isEmpty()), icons},
        {Check::LaunchImages, judged(launchImages.isEmpty()), launchImages},
        {Check::BundleIdentifier, judged(verdicts.bundleIdentifierValid), {}},
        {Check::Localizations, judged(verdicts.localizationsValid), {}},
        {Check::UrlSchemes, informing(verdicts.urlSchemesPresent), {}},
        {Check::FacebookAppId, informing(verdicts.facebookAppIDPresent), {}},
    };
}

CheckSum sumOf(const QList<CheckResult> &results)
{
    CheckSum sum;
    for (const CheckResult &result : results) {
        sum.failed += result.verdict == CheckVerdict::Failed ? 1 : 0;
        sum.judged += result.verdict == CheckVerdict::Absent ? 0 : 1;
    }
    return sum;
}

} // namespace lumora
