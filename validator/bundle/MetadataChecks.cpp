// SPDX-License-Identifier: MIT
#include "MetadataChecks.h"

using namespace Qt::StringLiterals;

namespace lumora
{

BuildKind buildKind(const PackageFacts &facts)
{
    const bool namesDevices = !facts.provisioningProfile || facts.provisioningProfile->contains(u"ProvisionedDevices");
    return namesDevices ? BuildKind::Debug : BuildKind::Release;
}

QString buildName(BuildKind kind)
{
    return kind == BuildKind::Debug ? u"debug"_s : u"release"_s;
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
