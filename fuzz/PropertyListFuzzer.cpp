// SPDX-License-Identifier: MIT
// Any bytes as an Info.plist: read, and every fact drawn from it.
#include "validator/bundle/ArtworkChecks.h"
#include "validator/bundle/MetadataChecks.h"
#include "validator/bundle/PropertyList.h"

#include <cstdlib>

using namespace lumora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    PackageFacts facts;
    facts.appInfoPlist =
        propertyListDictionary(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    const bool known = facts.appInfoPlist.has_value();
    if (known == facts.appPlatform().isEmpty())
        std::abort();
    facts.provisioningProfile =
        facts.appName() + facts.appVersion() + facts.appMinimumOSVersion() + facts.appBundleIdentifier();
    const MetadataVerdicts verdicts = metadataVerdicts(facts);
    if (verdicts.bundleIdentifierValid == facts.appBundleIdentifier().isEmpty())
        std::abort();
    if (requiredIcons(facts.appPlatformType()).isEmpty() == known || facts.minimumOSNumber() < 0)
        std::abort();
    return 0;
}
