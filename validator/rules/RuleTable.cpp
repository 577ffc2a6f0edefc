// SPDX-License-Identifier: MIT
#include "Judging.h"

namespace lumora
{

namespace
{

constexpr auto Error = Severity::Error;
constexpr auto Warning = Severity::Warning;
constexpr auto Note = Severity::Note;

constexpr const char *storeMessages = "RULE_SOURCE_STORE";
constexpr const char *oneSource = "RULE_SOURCE_ONE_REPORT";
constexpr const char *signing = "RULE_SOURCE_SIGNING";
constexpr const char *privacy = "RULE_SOURCE_PRIVACY";

constexpr Rule table[] = {
    {"icon-phone", "ITMS-90022", Error, "RULE_ICON_PHONE_TITLE", "RULE_ICON_PHONE_RULE", "RULE_ICON_PHONE_FIX",
     storeMessages, "", &judgePhoneIcon},
    {"icon-pad", "ITMS-90023", Error, "RULE_ICON_PAD_TITLE", "RULE_ICON_PAD_RULE", "RULE_ICON_PAD_FIX", storeMessages,
     "", &judgePadIcon},
    {"icon-pad-pro", "ITMS-90023", Warning, "RULE_ICON_PAD_PRO_TITLE", "RULE_ICON_PAD_PRO_RULE",
     "RULE_ICON_PAD_PRO_FIX", storeMessages, "", &judgePadProIcon},
    {"icon-marketing", "ITMS-90704", Error, "RULE_ICON_MARKETING_TITLE", "RULE_ICON_MARKETING_RULE",
     "RULE_ICON_MARKETING_FIX", storeMessages, "", &judgeMarketingIcon},
    {"icon-name", "ITMS-90713", Error, "RULE_ICON_NAME_TITLE", "RULE_ICON_NAME_RULE", "RULE_ICON_NAME_FIX",
     storeMessages, "", &judgeIconName},
    {"icon-opaque", "ITMS-90717", Error, "RULE_ICON_OPAQUE_TITLE", "RULE_ICON_OPAQUE_RULE", "RULE_ICON_OPAQUE_FIX",
     storeMessages, "", &judgeOpaqueIcon},

    {"pad-orientations", "ITMS-90474", Error, "RULE_PAD_ORIENTATIONS_TITLE", "RULE_PAD_ORIENTATIONS_RULE",
     "RULE_PAD_ORIENTATIONS_FIX", storeMessages, "", &judgePadOrientations},
    {"launch-screen", "ITMS-90475", Error, "RULE_LAUNCH_SCREEN_TITLE", "RULE_LAUNCH_SCREEN_RULE",
     "RULE_LAUNCH_SCREEN_FIX", storeMessages, "", &judgeLaunchScreen},
    {"package-type", "ITMS-90183", Error, "RULE_PACKAGE_TYPE_TITLE", "RULE_PACKAGE_TYPE_RULE", "RULE_PACKAGE_TYPE_FIX",
     storeMessages, "", &judgePackageType},
    {"minimum-system", "ITMS-90068", Warning, "RULE_MINIMUM_SYSTEM_TITLE", "RULE_MINIMUM_SYSTEM_RULE",
     "RULE_MINIMUM_SYSTEM_FIX", oneSource, "2026-06", &judgeMinimumSystem},
    {"nested-version", "ITMS-90057", Error, "RULE_NESTED_VERSION_TITLE", "RULE_NESTED_VERSION_RULE",
     "RULE_NESTED_VERSION_FIX", storeMessages, "", &judgeNestedVersions},
    {"extension-version", "ITMS-90473", Warning, "RULE_EXTENSION_VERSION_TITLE", "RULE_EXTENSION_VERSION_RULE",
     "RULE_EXTENSION_VERSION_FIX", storeMessages, "", &judgeExtensionVersions},
    {"identifier-once", "ITMS-90685", Error, "RULE_IDENTIFIER_ONCE_TITLE", "RULE_IDENTIFIER_ONCE_RULE",
     "RULE_IDENTIFIER_ONCE_FIX", storeMessages, "", &judgeIdentifiersOnce},
    {"nested-identifier", "ITMS-90347", Error, "RULE_NESTED_IDENTIFIER_TITLE", "RULE_NESTED_IDENTIFIER_RULE",
     "RULE_NESTED_IDENTIFIER_FIX", storeMessages, "", &judgeNestedIdentifiers},
    {"arm64-capability", "ITMS-90502", Error, "RULE_ARM64_CAPABILITY_TITLE", "RULE_ARM64_CAPABILITY_RULE",
     "RULE_ARM64_CAPABILITY_FIX", storeMessages, "", &judgeArm64Capability},
    {"arm64-minimum", "ITMS-90098", Warning, "RULE_ARM64_MINIMUM_TITLE", "RULE_ARM64_MINIMUM_RULE",
     "RULE_ARM64_MINIMUM_FIX", storeMessages, "", &judgeArm64Minimum},

    {"sdk-age", "ITMS-90725", Error, "RULE_SDK_AGE_TITLE", "RULE_SDK_AGE_RULE", "RULE_SDK_AGE_FIX", storeMessages,
     "2025-04", &judgeSdkAge},
    {"sdk-age-next", "ITMS-90725", Warning, "RULE_SDK_AGE_NEXT_TITLE", "RULE_SDK_AGE_NEXT_RULE",
     "RULE_SDK_AGE_NEXT_FIX", oneSource, "2027-04", &judgeSdkAgeNext},
    {"executable", "ITMS-90124", Error, "RULE_EXECUTABLE_TITLE", "RULE_EXECUTABLE_RULE", "RULE_EXECUTABLE_FIX",
     storeMessages, "", &judgeExecutable},
    {"simulator-code", "ITMS-90087", Error, "RULE_SIMULATOR_CODE_TITLE", "RULE_SIMULATOR_CODE_RULE",
     "RULE_SIMULATOR_CODE_FIX", storeMessages, "", &judgeSimulatorSlices},
    {"alignment", "ITMS-90209", Error, "RULE_ALIGNMENT_TITLE", "RULE_ALIGNMENT_RULE", "RULE_ALIGNMENT_FIX",
     storeMessages, "", &judgeAlignment},
    {"bitcode", "ITMS-90482", Error, "RULE_BITCODE_TITLE", "RULE_BITCODE_RULE", "RULE_BITCODE_FIX", storeMessages,
     "2024-09", &judgeBitcode},
    {"encryption-info", "ITMS-90125", Error, "RULE_ENCRYPTION_INFO_TITLE", "RULE_ENCRYPTION_INFO_RULE",
     "RULE_ENCRYPTION_INFO_FIX", storeMessages, "", &judgeEncryptionInfo},
    {"web-view", "ITMS-90809", Error, "RULE_WEB_VIEW_TITLE", "RULE_WEB_VIEW_RULE", "RULE_WEB_VIEW_FIX", storeMessages,
     "2020-12", &judgeWebView},
    {"private-names", "ITMS-90338", Error, "RULE_PRIVATE_NAMES_TITLE", "RULE_PRIVATE_NAMES_RULE",
     "RULE_PRIVATE_NAMES_FIX", storeMessages, "", &judgePrivateNames},
    {"framework-minimum", "ITMS-90360", Error, "RULE_FRAMEWORK_MINIMUM_TITLE", "RULE_FRAMEWORK_MINIMUM_RULE",
     "RULE_FRAMEWORK_MINIMUM_FIX", storeMessages, "", &judgeFrameworkMinimum},
    {"framework-system", "ITMS-90208", Error, "RULE_FRAMEWORK_SYSTEM_TITLE", "RULE_FRAMEWORK_SYSTEM_RULE",
     "RULE_FRAMEWORK_SYSTEM_FIX", storeMessages, "", &judgeFrameworkBinaryMinimum},
    {"framework-type", "ITMS-90124", Error, "RULE_FRAMEWORK_TYPE_TITLE", "RULE_FRAMEWORK_TYPE_RULE",
     "RULE_FRAMEWORK_TYPE_FIX", storeMessages, "", &judgeFrameworkFileType},
    {"swift-entry", "ITMS-90896", Warning, "RULE_SWIFT_ENTRY_TITLE", "RULE_SWIFT_ENTRY_RULE", "RULE_SWIFT_ENTRY_FIX",
     oneSource, "", &judgeSwiftEntry},
    {"loose-code", "ITMS-90171", Error, "RULE_LOOSE_CODE_TITLE", "RULE_LOOSE_CODE_RULE", "RULE_LOOSE_CODE_FIX",
     storeMessages, "", &judgeLooseCode},
    {"nested-frameworks", "ITMS-90206", Error, "RULE_NESTED_FRAMEWORKS_TITLE", "RULE_NESTED_FRAMEWORKS_RULE",
     "RULE_NESTED_FRAMEWORKS_FIX", storeMessages, "", &judgeNestedFrameworks},
    {"swift-support", "ITMS-90426", Error, "RULE_SWIFT_SUPPORT_TITLE", "RULE_SWIFT_SUPPORT_RULE",
     "RULE_SWIFT_SUPPORT_FIX", storeMessages, "", &judgeSwiftSupport},

    {"signed", "ITMS-90034", Error, "RULE_SIGNED_TITLE", "RULE_SIGNED_RULE", "RULE_SIGNED_FIX", storeMessages, "",
     &judgeSigned},
    {"signature", "ITMS-90034", Error, "RULE_SIGNATURE_TITLE", "RULE_SIGNATURE_RULE", "RULE_SIGNATURE_FIX", signing, "",
     &judgeSignature},
    {"signature-digest", "", Warning, "RULE_SIGNATURE_DIGEST_TITLE", "RULE_SIGNATURE_DIGEST_RULE",
     "RULE_SIGNATURE_DIGEST_FIX", signing, "", &judgeSignatureDigest},
    {"seal", "ITMS-90035", Error, "RULE_SEAL_TITLE", "RULE_SEAL_RULE", "RULE_SEAL_FIX", signing, "", &judgeSeal},
    {"certificate-kind", "ITMS-90035", Error, "RULE_CERTIFICATE_KIND_TITLE", "RULE_CERTIFICATE_KIND_RULE",
     "RULE_CERTIFICATE_KIND_FIX", storeMessages, "", &judgeCertificateKind},
    {"certificate-validity", "ITMS-90035", Error, "RULE_CERTIFICATE_VALIDITY_TITLE", "RULE_CERTIFICATE_VALIDITY_RULE",
     "RULE_CERTIFICATE_VALIDITY_FIX", signing, "", &judgeCertificateValidity},
    {"certificate-profile", "ITMS-90164", Error, "RULE_CERTIFICATE_PROFILE_TITLE", "RULE_CERTIFICATE_PROFILE_RULE",
     "RULE_CERTIFICATE_PROFILE_FIX", signing, "", &judgeCertificateInProfile},
    {"profile", "ITMS-90174", Error, "RULE_PROFILE_TITLE", "RULE_PROFILE_RULE", "RULE_PROFILE_FIX", storeMessages, "",
     &judgeProfilePresent},
    {"mac-profile", "ITMS-90889", Warning, "RULE_MAC_PROFILE_TITLE", "RULE_MAC_PROFILE_RULE", "RULE_MAC_PROFILE_FIX",
     storeMessages, "", &judgeMacProfile},
    {"mac-sandbox", "ITMS-90296", Error, "RULE_MAC_SANDBOX_TITLE", "RULE_MAC_SANDBOX_RULE", "RULE_MAC_SANDBOX_FIX",
     storeMessages, "", &judgeMacSandbox},
    {"profile-kind", "ITMS-90161", Error, "RULE_PROFILE_KIND_TITLE", "RULE_PROFILE_KIND_RULE", "RULE_PROFILE_KIND_FIX",
     storeMessages, "", &judgeProfileKind},
    {"profile-expiry", "ITMS-90161", Error, "RULE_PROFILE_EXPIRY_TITLE", "RULE_PROFILE_EXPIRY_RULE",
     "RULE_PROFILE_EXPIRY_FIX", signing, "", &judgeProfileExpiry},
    {"profile-identifier", "ITMS-90161", Error, "RULE_PROFILE_IDENTIFIER_TITLE", "RULE_PROFILE_IDENTIFIER_RULE",
     "RULE_PROFILE_IDENTIFIER_FIX", signing, "", &judgeProfileIdentifier},
    {"team", "ITMS-90164", Error, "RULE_TEAM_TITLE", "RULE_TEAM_RULE", "RULE_TEAM_FIX", signing, "", &judgeTeam},
    {"entitlements", "ITMS-90164", Error, "RULE_ENTITLEMENTS_TITLE", "RULE_ENTITLEMENTS_RULE", "RULE_ENTITLEMENTS_FIX",
     storeMessages, "", &judgeEntitlements},
    {"debuggable", "ITMS-90046", Error, "RULE_DEBUGGABLE_TITLE", "RULE_DEBUGGABLE_RULE", "RULE_DEBUGGABLE_FIX",
     storeMessages, "", &judgeDebuggable},
    {"push", "ITMS-90078", Warning, "RULE_PUSH_TITLE", "RULE_PUSH_RULE", "RULE_PUSH_FIX", storeMessages, "",
     &judgePush},

    {"purpose", "ITMS-90683", Error, "RULE_PURPOSE_TITLE", "RULE_PURPOSE_RULE", "RULE_PURPOSE_FIX", storeMessages, "",
     &judgePurposes},
    {"purpose-likely", "ITMS-90683", Warning, "RULE_PURPOSE_LIKELY_TITLE", "RULE_PURPOSE_LIKELY_RULE",
     "RULE_PURPOSE_LIKELY_FIX", "RULE_SOURCE_OTHER_TOOLS", "", &judgeLikelyPurposes},
    {"purpose-empty", "", Warning, "RULE_PURPOSE_EMPTY_TITLE", "RULE_PURPOSE_EMPTY_RULE", "RULE_PURPOSE_EMPTY_FIX",
     "RULE_SOURCE_REVIEWS", "", &judgeEmptyPurposes},
    {"purpose-vague", "", Note, "RULE_PURPOSE_VAGUE_TITLE", "RULE_PURPOSE_VAGUE_RULE", "RULE_PURPOSE_VAGUE_FIX",
     "RULE_SOURCE_REVIEWS", "", &judgeVaguePurposes},
    {"required-reason", "ITMS-91053", Warning, "RULE_REQUIRED_REASON_TITLE", "RULE_REQUIRED_REASON_RULE",
     "RULE_REQUIRED_REASON_FIX", privacy, "2024-05", &judgeRequiredReasons},
    {"privacy-form", "ITMS-91056", Error, "RULE_PRIVACY_FORM_TITLE", "RULE_PRIVACY_FORM_RULE", "RULE_PRIVACY_FORM_FIX",
     privacy, "2024-05", &judgePrivacyForm},
    {"listed-kit", "ITMS-91061", Error, "RULE_LISTED_KIT_TITLE", "RULE_LISTED_KIT_RULE", "RULE_LISTED_KIT_FIX",
     "RULE_SOURCE_KITS", "2024-05", &judgeListedKits},
    {"listed-kit-signature", "ITMS-91065", Warning, "RULE_LISTED_KIT_SIGNATURE_TITLE", "RULE_LISTED_KIT_SIGNATURE_RULE",
     "RULE_LISTED_KIT_SIGNATURE_FIX", "RULE_SOURCE_KITS", "2024-05", &judgeKitSignatures},

    {"export-compliance", "", Note, "RULE_EXPORT_COMPLIANCE_TITLE", "RULE_EXPORT_COMPLIANCE_RULE",
     "RULE_EXPORT_COMPLIANCE_FIX", "RULE_SOURCE_CONNECT", "", &judgeExportCompliance},
    {"background-processing", "", Warning, "RULE_BACKGROUND_PROCESSING_TITLE", "RULE_BACKGROUND_PROCESSING_RULE",
     "RULE_BACKGROUND_PROCESSING_FIX", storeMessages, "", &judgeBackgroundProcessing},
    {"arbitrary-loads", "", Note, "RULE_ARBITRARY_LOADS_TITLE", "RULE_ARBITRARY_LOADS_RULE", "RULE_ARBITRARY_LOADS_FIX",
     "RULE_SOURCE_REVIEWS", "", &judgeArbitraryLoads},
    {"localization-holes", "", Warning, "RULE_LOCALIZATION_HOLES_TITLE", "RULE_LOCALIZATION_HOLES_RULE",
     "RULE_LOCALIZATION_HOLES_FIX", "RULE_SOURCE_LANGUAGES", "", &judgeLocalizationHoles},
    {"facebook", "", Warning, "RULE_FACEBOOK_TITLE", "RULE_FACEBOOK_RULE", "RULE_FACEBOOK_FIX", "RULE_SOURCE_KIT", "",
     &judgeFacebook},
    {"cellular-size", "", Note, "RULE_CELLULAR_SIZE_TITLE", "RULE_CELLULAR_SIZE_RULE", "RULE_CELLULAR_SIZE_FIX",
     "RULE_SOURCE_SETTINGS", "", &judgeCellularSize},
    {"unread", "", Error, "RULE_UNREAD_TITLE", "RULE_UNREAD_RULE", "RULE_UNREAD_FIX", "RULE_SOURCE_OWN", "",
     &judgeUnread},
};

} // namespace

std::span<const Rule> allRules()
{
    return table;
}

} // namespace lumora
