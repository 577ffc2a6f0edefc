// SPDX-License-Identifier: MIT
#pragma once

#include "Wording.h"

#include <QVersionNumber>

namespace lumora
{

inline Judgement holds()
{
    return {};
}

inline Judgement notApplicable(const QString &reason)
{
    return {Judgement::NotApplicable, {}, reason};
}

inline Judgement cannotBeKnown(const QString &reason)
{
    return {Judgement::Unknown, {}, reason};
}

/// Of a file in `PackageContents::unread`.
inline QString tooLarge()
{
    return worded("FOUND_TOO_LARGE");
}

/// Broken when there is any evidence; otherwise the rule holds.
inline Judgement brokenBy(const QList<Evidence> &evidence)
{
    return evidence.isEmpty() ? holds() : Judgement{Judgement::Broken, evidence, {}};
}

inline QString infoPath(const PackageBundle &bundle)
{
    return bundle.layout.info;
}

/// From the app's binary, else from its Info.plist; unknown without both.
BinaryPlatform platformOf(const PackageContents &contents);
bool isPhoneApp(const PackageContents &contents);
bool isMacApp(const PackageContents &contents);
/// 1 for the phone, 2 for the pad; an app without device families is for the phone.
QList<int> deviceFamilies(const PackageBundle &app);
QVersionNumber minimumSystem(const PackageBundle &bundle);
/// The SDK of the app's binary, else that of its Info.plist; null if neither has one.
QVersionNumber sdkOf(const PackageContents &contents);
/// The entitlements that the app's signature claims.
QVariantMap entitlementsOf(const PackageContents &contents, const PackageBundle &bundle);
/// The bundles with code of their own: the app, extensions, frameworks, watch apps.
QList<const PackageBundle *> codeBundles(const PackageContents &contents);

Judgement judgePhoneIcon(const PackageContents &, const RuleSettings &);
Judgement judgePadIcon(const PackageContents &, const RuleSettings &);
Judgement judgePadProIcon(const PackageContents &, const RuleSettings &);
Judgement judgeMarketingIcon(const PackageContents &, const RuleSettings &);
Judgement judgeIconName(const PackageContents &, const RuleSettings &);
Judgement judgeOpaqueIcon(const PackageContents &, const RuleSettings &);

Judgement judgePadOrientations(const PackageContents &, const RuleSettings &);
Judgement judgeLaunchScreen(const PackageContents &, const RuleSettings &);
Judgement judgePackageType(const PackageContents &, const RuleSettings &);
Judgement judgeMinimumSystem(const PackageContents &, const RuleSettings &);
Judgement judgeNestedVersions(const PackageContents &, const RuleSettings &);
Judgement judgeExtensionVersions(const PackageContents &, const RuleSettings &);
Judgement judgeIdentifiersOnce(const PackageContents &, const RuleSettings &);
Judgement judgeNestedIdentifiers(const PackageContents &, const RuleSettings &);
Judgement judgeArm64Capability(const PackageContents &, const RuleSettings &);
Judgement judgeArm64Minimum(const PackageContents &, const RuleSettings &);
Judgement judgeExportCompliance(const PackageContents &, const RuleSettings &);
Judgement judgeBackgroundProcessing(const PackageContents &, const RuleSettings &);
Judgement judgeArbitraryLoads(const PackageContents &, const RuleSettings &);
Judgement judgeFacebook(const PackageContents &, const RuleSettings &);
Judgement judgeLocalizationHoles(const PackageContents &, const RuleSettings &);
Judgement judgeCellularSize(const PackageContents &, const RuleSettings &);
Judgement judgeUnread(const PackageContents &, const RuleSettings &);

Judgement judgeSdkAge(const PackageContents &, const RuleSettings &);
Judgement judgeSdkAgeNext(const PackageContents &, const RuleSettings &);
Judgement judgeExecutable(const PackageContents &, const RuleSettings &);
Judgement judgeSimulatorSlices(const PackageContents &, const RuleSettings &);
Judgement judgeAlignment(const PackageContents &, const RuleSettings &);
Judgement judgeBitcode(const PackageContents &, const RuleSettings &);
Judgement judgeEncryptionInfo(const PackageContents &, const RuleSettings &);
Judgement judgeWebView(const PackageContents &, const RuleSettings &);
Judgement judgePrivateNames(const PackageContents &, const RuleSettings &);
Judgement judgeFrameworkMinimum(const PackageContents &, const RuleSettings &);
Judgement judgeFrameworkBinaryMinimum(const PackageContents &, const RuleSettings &);
Judgement judgeFrameworkFileType(const PackageContents &, const RuleSettings &);
Judgement judgeSwiftEntry(const PackageContents &, const RuleSettings &);
Judgement judgeLooseCode(const PackageContents &, const RuleSettings &);
Judgement judgeNestedFrameworks(const PackageContents &, const RuleSettings &);
Judgement judgeSwiftSupport(const PackageContents &, const RuleSettings &);

Judgement judgeSigned(const PackageContents &, const RuleSettings &);
Judgement judgeSignature(const PackageContents &, const RuleSettings &);
Judgement judgeSignatureDigest(const PackageContents &, const RuleSettings &);
Judgement judgeSeal(const PackageContents &, const RuleSettings &);
Judgement judgeCertificateKind(const PackageContents &, const RuleSettings &);
Judgement judgeCertificateValidity(const PackageContents &, const RuleSettings &);
Judgement judgeCertificateInProfile(const PackageContents &, const RuleSettings &);
Judgement judgeProfilePresent(const PackageContents &, const RuleSettings &);
Judgement judgeMacProfile(const PackageContents &, const RuleSettings &);
Judgement judgeMacSandbox(const PackageContents &, const RuleSettings &);
Judgement judgeProfileKind(const PackageContents &, const RuleSettings &);
Judgement judgeProfileExpiry(const PackageContents &, const RuleSettings &);
Judgement judgeProfileIdentifier(const PackageContents &, const RuleSettings &);
Judgement judgeTeam(const PackageContents &, const RuleSettings &);
Judgement judgeEntitlements(const PackageContents &, const RuleSettings &);
Judgement judgeDebuggable(const PackageContents &, const RuleSettings &);
Judgement judgePush(const PackageContents &, const RuleSettings &);

Judgement judgePurposes(const PackageContents &, const RuleSettings &);
Judgement judgeLikelyPurposes(const PackageContents &, const RuleSettings &);
Judgement judgeEmptyPurposes(const PackageContents &, const RuleSettings &);
Judgement judgeVaguePurposes(const PackageContents &, const RuleSettings &);
Judgement judgeRequiredReasons(const PackageContents &, const RuleSettings &);
Judgement judgePrivacyForm(const PackageContents &, const RuleSettings &);
Judgement judgeListedKits(const PackageContents &, const RuleSettings &);
Judgement judgeKitSignatures(const PackageContents &, const RuleSettings &);

} // namespace lumora
