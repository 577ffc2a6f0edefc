// SPDX-License-Identifier: MIT
#include "MetadataChecks.h"

namespace lumora
{

BuildKind buildKind(const PackageFacts &facts)
{
    const bool namesDevices = !facts.provisioningProfile || facts.provisioningProfile->contains(u"ProvisionedDevices");
    return namesDevices ? BuildKind::Debug : BuildKind::Release;
}

MetadataVerdicts metadataVerdicts(const PackageFacts &facts)
{
    const QString identifier = facts.appBundleIdentifier();
    MetadataVerdicts verdicts;
    verdicts.bundleIdentifierValid =
        !facts.provisioningProfile || (!identifier.isEmpty() && facts.provisioningProfile->contains(identifier));
    verdicts.localizationsValid = !facts.appLocalizations.isEmpty();
    verdicts.urlSchemesPresent = !facts.appURLSchemes().value_or(QStringList()).isEmpty();
    verdicts.facebookAppIDPresent = facts.appFacebookID().has_value();
    return verdicts;
}

} // namespace lumora
