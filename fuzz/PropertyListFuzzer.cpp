// SPDX-License-Identifier: MIT
// Any bytes as an Info.plist, and as a table of strings in its place: read, and every fact drawn from it.
#include "validator/bundle/ArtworkChecks.h"
#include "validator/bundle/MetadataChecks.h"
#include "validator/bundle/PropertyList.h"
#include "validator/rules/PrivacyManifest.h"

#include <cstdlib>

using namespace lumora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    PackageFacts facts;
    facts.appInfoPlist = propertyListDictionary(bytes);
    if (const auto table = readStringsTable(bytes))
        facts.localizedInfo.insert(QStringLiteral("en"), *table);
    if (facts.appInfoPlist)
        readPrivacyManifest(*facts.appInfoPlist);
    const bool known = facts.appInfoPlist.has_value();
    if (known == facts.appPlatform().isEmpty() || known == facts.shownPlatform().isEmpty())
        std::abort();
    facts.provisioningProfile =
        facts.shownName() + facts.appVersion() + facts.appMinimumOSVersion() + facts.appBundleIdentifier();
    const MetadataVerdicts verdicts = metadataVerdicts(facts);
    if (verdicts.bundleIdentifierValid == facts.appBundleIdentifier().isEmpty())
        std::abort();
    if (requiredIcons(facts.appPlatformType()).isEmpty() == known || facts.minimumOSNumber() < 0)
        std::abort();
    return 0;
}
