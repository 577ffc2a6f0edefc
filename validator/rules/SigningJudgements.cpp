// SPDX-License-Identifier: MIT
#include "Judging.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QString unsignedReason()
{
    return worded("FOUND_APP_NOT_SIGNED");
}
QString noProfileReason()
{
    return worded("FOUND_NO_PROFILE");
}

QString faultText(SignatureFault fault)
{
    switch (fault) {
    case SignatureFault::Damaged:
        return worded("FOUND_SIGNATURE_DAMAGED");
    case SignatureFault::NestedSignature:
        return worded("FOUND_SIGNATURE_NESTED");
    case SignatureFault::NoCodeDirectory:
        return worded("FOUND_SIGNATURE_EMPTY");
    case SignatureFault::UnknownDigest:
        return worded("FOUND_UNKNOWN_DIGEST");
    case SignatureFault::PagesChanged:
        return worded("FOUND_CODE_CHANGED");
    case SignatureFault::CodeNotCovered:
        return worded("FOUND_CODE_NOT_COVERED");
    case SignatureFault::RequirementsChanged:
        return worded("FOUND_REQUIREMENTS_CHANGED");
    case SignatureFault::EntitlementsChanged:
        return worded("FOUND_ENTITLEMENTS_CHANGED");
    case SignatureFault::DerEntitlementsChanged:
        return worded("FOUND_DER_CHANGED");
    case SignatureFault::EntitlementsDiffer:
        return worded("FOUND_FORMS_DIFFER");
    case SignatureFault::EntitlementsUnreadable:
        return worded("FOUND_ENTITLEMENTS_UNREADABLE");
    case SignatureFault::MessageUnreadable:
        return worded("FOUND_MESSAGE_UNREADABLE");
    case SignatureFault::NoSignerCertificate:
        return worded("FOUND_NO_CERTIFICATE");
    case SignatureFault::MessageDigestChanged:
        return worded("FOUND_OTHER_CODE");
    case SignatureFault::MessageSignatureBroken:
        return worded("FOUND_OTHER_KEY");
    case SignatureFault::DirectoriesDiffer:
        return worded("FOUND_OTHER_DIRECTORIES");
    case SignatureFault::SignedOutsideValidity:
        return worded("FOUND_OUTSIDE_VALIDITY");
    }
    return {};
}

void addAll(QList<Evidence> &evidence, const QStringList &paths, const PackageBundle &bundle, const QString &text)
{
    for (const QString &path : paths)
        evidence += Evidence{bundle.layout.root + u'/' + path, text};
}

/// The certificate that the app is signed with.
std::optional<CertificateFacts> signerOf(const PackageContents &contents, const PackageBundle &bundle)
{
    const CodeSignature *signature = contents.signatureOf(bundle);
    return signature == nullptr || !signature->signer ? std::nullopt : signature->signer->certificate;
}

bool isDistribution(const QString &commonName)
{
    // The store itself signs with "Apple iPhone OS Application Signing".
    return commonName.startsWith("iPhone Distribution"_L1) || commonName.startsWith("Apple Distribution"_L1) ||
           commonName.startsWith("Apple iPhone OS Application Signing"_L1) ||
           commonName.startsWith("3rd Party Mac Developer Application"_L1) ||
           commonName.startsWith("Apple Mac OS Application Signing"_L1);
}

} // namespace

Judgement judgeSigned(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    for (const PackageBinary &binary : contents.binaries) {
        if (!binary.path.startsWith(contents.app()->path + u'/'))
            continue;
        if (!binary.isSigned())
            bad += Evidence{binary.path, worded("FOUND_NOT_SIGNED")};
        else if (std::ranges::any_of(binary.signatures, &CodeSignature::isAdHoc))
            bad += Evidence{binary.path, worded("FOUND_AD_HOC")};
    }
    return brokenBy(bad);
}

Judgement judgeSignature(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    bool found = false;
    for (const PackageBinary &binary : contents.binaries) {
        QList<SignatureFault> faults;
        for (const CodeSignature &signature : binary.signatures) {
            found = true;
            for (const SignatureFault fault : signature.faults) {
                if (!faults.contains(fault))
                    faults += fault;
            }
        }
        for (const SignatureFault fault : faults)
            bad += Evidence{binary.path, faultText(fault)};
    }
    return found ? brokenBy(bad) : notApplicable(worded("FOUND_NOTHING_SIGNED"));
}

Judgement judgeSignatureDigest(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    bool found = false;
    for (const PackageBinary &binary : contents.binaries) {
        const bool isOld = std::ranges::any_of(binary.signatures, [&found](const CodeSignature &signature) {
            found = true;
            return !signature.directories.isEmpty() &&
                   std::ranges::all_of(signature.directories, [](const CodeDirectory &directory) {
                       return directory.digest == DigestKind::Sha1;
                   });
        });
        if (isOld)
            bad += Evidence{binary.path, worded("FOUND_SHA1_ONLY")};
    }
    return found ? brokenBy(bad) : notApplicable(worded("FOUND_NOTHING_SIGNED"));
}

Judgement judgeSeal(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    bool found = false;
    for (const PackageBundle *bundle : codeBundles(contents)) {
        if (contents.signatureOf(*bundle) == nullptr)
            continue;
        found = true;
        const QString sealPath = bundle->layout.root + u"/_CodeSignature/CodeResources";
        const SealFindings &findings = bundle->seal.findings;
        if (!bundle->seal.infoBound)
            bad += Evidence{infoPath(*bundle), worded("FOUND_CHANGED")};
        if (findings.state == SealState::NotThere)
            bad += Evidence{sealPath, worded("FOUND_NOT_THERE")};
        else if (findings.state == SealState::Unreadable)
            bad += Evidence{sealPath, worded("FOUND_UNREADABLE")};
        else if (findings.state == SealState::TooLarge)
            bad += Evidence{sealPath, worded("FOUND_SEAL_TOO_LARGE")};
        else if (!bundle->seal.sealBound)
            bad += Evidence{sealPath, worded("FOUND_CHANGED")};
        addAll(bad, findings.changed, *bundle, worded("FOUND_CHANGED"));
        addAll(bad, findings.missing, *bundle, worded("FOUND_SEALED_MISSING"));
        addAll(bad, findings.extra, *bundle, worded("FOUND_NOT_SEALED"));
        if (findings.unlisted > 0)
            bad += Evidence{sealPath, worded("FOUND_MORE_DIFFER", {QString::number(findings.unlisted)})};
        if (findings.endsEarly)
            bad += Evidence{sealPath, worded("FOUND_MORE_MISSING")};
    }
    return found ? brokenBy(bad) : notApplicable(worded("FOUND_NOTHING_SIGNED"));
}

Judgement judgeCertificateKind(const PackageContents &contents, const RuleSettings &)
{
    const auto signer = signerOf(contents, *contents.app());
    if (!signer)
        return notApplicable(unsignedReason());
    if (isDistribution(signer->commonName))
        return holds();
    return brokenBy({{contents.app()->executable, worded("FOUND_SIGNED_BY", {signer->commonName})}});
}

Judgement judgeCertificateValidity(const PackageContents &contents, const RuleSettings &settings)
{
    const auto signer = signerOf(contents, *contents.app());
    if (!signer)
        return notApplicable(unsignedReason());
    if (signer->validUntil.date() >= settings.on)
        return holds();
    return brokenBy(
        {{contents.app()->executable, worded("FOUND_CERTIFICATE_ENDED", {signer->validUntil.toString(Qt::ISODate)})}});
}

Judgement judgeCertificateInProfile(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    bool found = false;
    for (const PackageBundle &bundle : contents.bundles) {
        const auto signer = signerOf(contents, bundle);
        if (!signer || !bundle.profile)
            continue;
        found = true;
        if (!bundle.profile->certificates.contains(signer->der))
            bad += Evidence{bundle.profilePath(), worded("FOUND_CERTIFICATE_NOT_IN_PROFILE", {signer->commonName})};
    }
    return found ? brokenBy(bad) : notApplicable(worded("FOUND_NO_SIGNED_BUNDLE"));
}

Judgement judgeProfilePresent(const PackageContents &contents, const RuleSettings &)
{
    // It has a rule of its own.
    if (isMacApp(contents))
        return notApplicable(worded("FOUND_MAC_APP"));
    QList<Evidence> bad;
    bool isUnread = false;
    for (const PackageBundle &bundle : contents.bundles) {
        if (bundle.kind != BundleKind::App && bundle.kind != BundleKind::Extension)
            continue;
        if (contents.isUnread(bundle.profilePath()))
            isUnread = true;
        else if (!bundle.profile)
            bad += Evidence{bundle.profilePath(),
                            bundle.hasProfileFile ? worded("FOUND_UNREADABLE") : worded("FOUND_NOT_THERE")};
    }
    return bad.isEmpty() && isUnread ? cannotBeKnown(tooLarge()) : brokenBy(bad);
}

Judgement judgeMacProfile(const PackageContents &contents, const RuleSettings &)
{
    if (!isMacApp(contents))
        return notApplicable(worded("FOUND_NO_MAC_APP"));
    const PackageBundle &app = *contents.app();
    if (app.profile)
        return holds();
    if (contents.isUnread(app.profilePath()))
        return cannotBeKnown(tooLarge());
    return brokenBy({{app.profilePath(), worded(app.hasProfileFile ? "FOUND_UNREADABLE" : "FOUND_NOT_THERE")}});
}

Judgement judgeMacSandbox(const PackageContents &contents, const RuleSettings &)
{
    if (!isMacApp(contents))
        return notApplicable(worded("FOUND_NO_MAC_APP"));
    const PackageBundle &app = *contents.app();
    if (contents.signatureOf(app) == nullptr)
        return notApplicable(unsignedReason());
    if (entitlementsOf(contents, app).value(u"com.apple.security.app-sandbox"_s).toBool())
        return holds();
    return brokenBy({{app.executable, worded("FOUND_NO_SANDBOX")}});
}

Judgement judgeProfileKind(const PackageContents &contents, const RuleSettings &)
{
    const PackageBundle &app = *contents.app();
    if (!app.profile)
        return notApplicable(noProfileReason());
    if (app.profile->kind == ProfileKind::AppStore)
        return holds();
    return brokenBy(
        {{app.profilePath(), worded("FOUND_PROFILE_KIND", {valueWord(profileKindName(app.profile->kind))})}});
}

Judgement judgeProfileExpiry(const PackageContents &contents, const RuleSettings &settings)
{
    QList<Evidence> bad;
    bool found = false;
    for (const PackageBundle &bundle : contents.bundles) {
        if (!bundle.profile || !bundle.profile->expires.isValid())
            continue;
        found = true;
        if (bundle.profile->expires.date() < settings.on)
            bad += Evidence{bundle.profilePath(),
                            worded("FOUND_PROFILE_ENDED", {bundle.profile->expires.toString(Qt::ISODate)})};
    }
    return found ? brokenBy(bad) : notApplicable(noProfileReason());
}

Judgement judgeProfileIdentifier(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    bool found = false;
    for (const PackageBundle &bundle : contents.bundles) {
        if (!bundle.info || !bundle.profile || bundle.profile->applicationIdentifier().isEmpty())
            continue;
        found = true;
        const QString granted = bundle.profile->applicationIdentifier();
        const QString wanted = granted.section(u'.', 0, 0) + u'.' + bundle.text(u"CFBundleIdentifier"_s);
        if (!entitlementIsGranted(granted, wanted))
            bad += Evidence{bundle.profilePath(), worded("FOUND_PROFILE_FOR", {granted, wanted})};
    }
    return found ? brokenBy(bad) : notApplicable(noProfileReason());
}

Judgement judgeTeam(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    bool found = false;
    for (const PackageBundle &bundle : contents.bundles) {
        const CodeSignature *signature = contents.signatureOf(bundle);
        const auto signer = signerOf(contents, bundle);
        if (signature == nullptr || !signer || !bundle.profile || bundle.profile->teamIdentifier.isEmpty())
            continue;
        found = true;
        const QString team = bundle.profile->teamIdentifier;
        const QString signedFor = signature->best() == nullptr ? QString() : signature->best()->team;
        if (!signedFor.isEmpty() && signedFor != team)
            bad += Evidence{bundle.executable, worded("FOUND_TEAM_SIGNED", {signedFor, team})};
        if (!signer->organizationalUnit.isEmpty() && signer->organizationalUnit != team)
            bad += Evidence{bundle.executable, worded("FOUND_TEAM_CERTIFICATE", {signer->organizationalUnit, team})};
    }
    return found ? brokenBy(bad) : notApplicable(worded("FOUND_NO_SIGNED_BUNDLE"));
}

Judgement judgeEntitlements(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    bool found = false;
    for (const PackageBundle &bundle : contents.bundles) {
        if (!bundle.profile || contents.signatureOf(bundle) == nullptr)
            continue;
        found = true;
        const QVariantMap claimed = entitlementsOf(contents, bundle);
        for (auto each = claimed.cbegin(); each != claimed.cend(); ++each) {
            // A false or empty entitlement claims nothing.
            const bool claimsNothing = each.value() == QVariant(false) ||
                                       (each->typeId() == QMetaType::QVariantList && each->toList().isEmpty());
            if (!claimsNothing && !entitlementIsGranted(bundle.profile->entitlements.value(each.key()), each.value()))
                bad += Evidence{bundle.executable, worded("FOUND_NOT_GRANTED", {each.key()})};
        }
    }
    return found ? brokenBy(bad) : notApplicable(worded("FOUND_NO_SIGNED_BUNDLE"));
}

Judgement judgeDebuggable(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    for (const PackageBundle *bundle : codeBundles(contents)) {
        if (entitlementsOf(contents, *bundle).value(u"get-task-allow"_s).toBool())
            bad += Evidence{bundle->executable, worded("FOUND_DEBUGGABLE")};
    }
    return contents.signatureOf(*contents.app()) == nullptr ? notApplicable(unsignedReason()) : brokenBy(bad);
}

Judgement judgePush(const PackageContents &contents, const RuleSettings &)
{
    const PackageBundle &app = *contents.app();
    const PackageBinary *binary = contents.binaryOf(app);
    if (binary == nullptr || contents.signatureOf(app) == nullptr)
        return notApplicable(unsignedReason());
    const bool registers = std::ranges::any_of(binary->facts.slices, [](const BinarySlice &slice) {
        return slice.namesSelector("registerForRemoteNotifications");
    });
    if (!registers || entitlementsOf(contents, app).contains(u"aps-environment"_s))
        return holds();
    return brokenBy({{binary->path, worded("FOUND_NO_PUSH")}});
}

} // namespace lumora
