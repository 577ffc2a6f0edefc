// SPDX-License-Identifier: MIT
#include "Judging.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

const QString unsignedReason = u"the app is not signed"_s;
const QString noProfileReason = u"there is no provisioning profile that can be read"_s;

QString faultText(SignatureFault fault)
{
    switch (fault) {
    case SignatureFault::Damaged:
        return u"the signature is damaged"_s;
    case SignatureFault::NestedSignature:
        return u"a signature inside a signature"_s;
    case SignatureFault::NoCodeDirectory:
        return u"the signature does not say what was signed"_s;
    case SignatureFault::UnknownDigest:
        return u"hashes of an unknown kind"_s;
    case SignatureFault::PagesChanged:
        return u"the code was changed after it was signed"_s;
    case SignatureFault::CodeNotCovered:
        return u"part of the code is not covered by the signature"_s;
    case SignatureFault::RequirementsChanged:
        return u"the requirements were changed after they were signed"_s;
    case SignatureFault::EntitlementsChanged:
        return u"the entitlements were changed after they were signed"_s;
    case SignatureFault::DerEntitlementsChanged:
        return u"the entitlements' second form was changed after it was signed"_s;
    case SignatureFault::EntitlementsDiffer:
        return u"the two forms of the entitlements say different things"_s;
    case SignatureFault::EntitlementsUnreadable:
        return u"the entitlements cannot be read"_s;
    case SignatureFault::MessageUnreadable:
        return u"the signature's message cannot be read"_s;
    case SignatureFault::NoSignerCertificate:
        return u"the signer's certificate is not there"_s;
    case SignatureFault::MessageDigestChanged:
        return u"the signature is about other code"_s;
    case SignatureFault::MessageSignatureBroken:
        return u"not signed with the certificate's key"_s;
    case SignatureFault::DirectoriesDiffer:
        return u"the signature is about other code directories"_s;
    case SignatureFault::SignedOutsideValidity:
        return u"signed when the certificate was not valid"_s;
    }
    return {};
}

void addAll(QList<Evidence> &evidence, const QStringList &paths, const PackageBundle &bundle, const QString &text)
{
    for (const QString &path : paths)
        evidence += Evidence{bundle.path + u'/' + path, text};
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
           commonName.startsWith("Apple iPhone OS Application Signing"_L1);
}

QString profilePath(const PackageBundle &bundle)
{
    return bundle.path + u"/embedded.mobileprovision";
}

} // namespace

Judgement judgeSigned(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    for (const PackageBinary &binary : contents.binaries) {
        if (!binary.path.startsWith(contents.app()->path + u'/'))
            continue;
        if (!binary.isSigned())
            bad += Evidence{binary.path, u"is not signed"_s};
        else if (std::ranges::any_of(binary.signatures, &CodeSignature::isAdHoc))
            bad += Evidence{binary.path, u"is signed by nobody (ad hoc)"_s};
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
    return found ? brokenBy(bad) : notApplicable(u"nothing is signed"_s);
}

Judgement judgeSeal(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    bool found = false;
    for (const PackageBundle *bundle : codeBundles(contents)) {
        if (contents.signatureOf(*bundle) == nullptr)
            continue;
        found = true;
        const QString sealPath = bundle->path + u"/_CodeSignature/CodeResources";
        if (!bundle->seal.infoBound)
            bad += Evidence{infoPath(*bundle), u"was changed after signing"_s};
        if (!bundle->seal.present)
            bad += Evidence{sealPath, contents.holds(sealPath) ? u"cannot be read"_s : u"is not there"_s};
        else if (!bundle->seal.sealBound)
            bad += Evidence{sealPath, u"was changed after signing"_s};
        addAll(bad, bundle->seal.findings.changed, *bundle, u"was changed after signing"_s);
        addAll(bad, bundle->seal.findings.missing, *bundle, u"was sealed, but is not there"_s);
        addAll(bad, bundle->seal.findings.extra, *bundle, u"is there, but was not sealed"_s);
    }
    return found ? brokenBy(bad) : notApplicable(u"nothing is signed"_s);
}

Judgement judgeCertificateKind(const PackageContents &contents, const RuleSettings &)
{
    const auto signer = signerOf(contents, *contents.app());
    if (!signer)
        return notApplicable(unsignedReason);
    if (isDistribution(signer->commonName))
        return holds();
    return brokenBy({{contents.app()->executable, u"signed by \"%1\""_s.arg(signer->commonName)}});
}

Judgement judgeCertificateValidity(const PackageContents &contents, const RuleSettings &settings)
{
    const auto signer = signerOf(contents, *contents.app());
    if (!signer)
        return notApplicable(unsignedReason);
    if (signer->validUntil.date() >= settings.on)
        return holds();
    return brokenBy({{contents.app()->executable,
                      u"the certificate was valid until %1"_s.arg(signer->validUntil.toString(Qt::ISODate))}});
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
            bad += Evidence{profilePath(bundle), u"does not hold the certificate of \"%1\""_s.arg(signer->commonName)};
    }
    return found ? brokenBy(bad) : notApplicable(u"there is no signed bundle with a profile"_s);
}

Judgement judgeProfilePresent(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    for (const PackageBundle &bundle : contents.bundles) {
        if (bundle.kind != BundleKind::App && bundle.kind != BundleKind::Extension)
            continue;
        if (!bundle.profile)
            bad += Evidence{profilePath(bundle), bundle.hasProfileFile ? u"cannot be read"_s : u"is not there"_s};
    }
    return brokenBy(bad);
}

Judgement judgeProfileKind(const PackageContents &contents, const RuleSettings &)
{
    const PackageBundle &app = *contents.app();
    if (!app.profile)
        return notApplicable(noProfileReason);
    if (app.profile->kind == ProfileKind::AppStore)
        return holds();
    return brokenBy({{profilePath(app), u"a profile for %1"_s.arg(profileKindName(app.profile->kind))}});
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
            bad += Evidence{profilePath(bundle), u"ended on %1"_s.arg(bundle.profile->expires.toString(Qt::ISODate))};
    }
    return found ? brokenBy(bad) : notApplicable(noProfileReason);
}

Judgement judgeProfileIdentifier(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    bool found = false;
    for (const PackageBundle &bundle : contents.bundles) {
        if (!bundle.profile || bundle.profile->applicationIdentifier().isEmpty())
            continue;
        found = true;
        const QString granted = bundle.profile->applicationIdentifier();
        const QString wanted = granted.section(u'.', 0, 0) + u'.' + bundle.text(u"CFBundleIdentifier"_s);
        if (!entitlementIsGranted(granted, wanted))
            bad += Evidence{profilePath(bundle), u"is for %1, the bundle is %2"_s.arg(granted, wanted)};
    }
    return found ? brokenBy(bad) : notApplicable(noProfileReason);
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
            bad +=
                Evidence{bundle.executable, u"is signed for the team %1, the profile is of %2"_s.arg(signedFor, team)};
        if (!signer->organizationalUnit.isEmpty() && signer->organizationalUnit != team)
            bad += Evidence{bundle.executable, u"the certificate is of the team %1, the profile of %2"_s.arg(
                                                   signer->organizationalUnit, team)};
    }
    return found ? brokenBy(bad) : notApplicable(u"there is no signed bundle with a profile"_s);
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
                bad += Evidence{bundle.executable, u"claims %1, which the profile does not grant"_s.arg(each.key())};
        }
    }
    return found ? brokenBy(bad) : notApplicable(u"there is no signed bundle with a profile"_s);
}

Judgement judgeDebuggable(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    for (const PackageBundle *bundle : codeBundles(contents)) {
        if (entitlementsOf(contents, *bundle).value(u"get-task-allow"_s).toBool())
            bad += Evidence{bundle->executable, u"get-task-allow is true"_s};
    }
    return contents.signatureOf(*contents.app()) == nullptr ? notApplicable(unsignedReason) : brokenBy(bad);
}

Judgement judgePush(const PackageContents &contents, const RuleSettings &)
{
    const PackageBundle &app = *contents.app();
    const PackageBinary *binary = contents.binaryOf(app);
    if (binary == nullptr || contents.signatureOf(app) == nullptr)
        return notApplicable(unsignedReason);
    const bool registers = std::ranges::any_of(binary->facts.slices, [](const BinarySlice &slice) {
        return slice.namesSelector("registerForRemoteNotifications");
    });
    if (!registers || entitlementsOf(contents, app).contains(u"aps-environment"_s))
        return holds();
    return brokenBy(
        {{binary->path, u"sends registerForRemoteNotifications, but has no entitlement aps-environment"_s}});
}

} // namespace lumora
