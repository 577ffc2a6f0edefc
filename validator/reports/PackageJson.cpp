// SPDX-License-Identifier: MIT
#include "PackageJson.h"

#include "validator/bundle/MetadataChecks.h"
#include "validator/rules/Wording.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

QJsonValue textOrNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
}

QJsonObject binaryJson(const PackageBinary &binary)
{
    QStringList architectures;
    QStringList uuids;
    QStringList libraries;
    bool encrypted = false;
    BinaryTarget target;
    for (const BinarySlice &slice : binary.facts.slices) {
        architectures += slice.architecture;
        if (slice.uuid)
            uuids += slice.uuid->toString(QUuid::WithoutBraces).toUpper();
        for (const LinkedLibrary &library : slice.libraries) {
            if (!libraries.contains(library.path))
                libraries += library.path;
        }
        encrypted = encrypted || slice.isEncrypted();
        if (!slice.targets.isEmpty())
            target = slice.targets.first();
    }
    const bool isKnown = target.platform != BinaryPlatform::Unknown;
    return {{u"path"_s, binary.path},
            {u"architectures"_s, QJsonArray::fromStringList(architectures)},
            {u"platform"_s, textOrNull(platformName(target.platform))},
            {u"minimumOS"_s, textOrNull(isKnown ? target.minimumOS.text() : QString())},
            {u"sdk"_s, textOrNull(isKnown ? target.sdk.text() : QString())},
            {u"uuids"_s, QJsonArray::fromStringList(uuids)},
            {u"encrypted"_s, encrypted},
            {u"libraries"_s, QJsonArray::fromStringList(libraries)}};
}

/// The places where signature and files disagree, whatever rules are asked.
QStringList brokenPlaces(const PackageContents &contents)
{
    QStringList places;
    for (const char *id : {"signed", "signature", "seal"}) {
        const Judgement judgement = ruleNamed(QString::fromLatin1(id))->judge(contents, {});
        for (const Evidence &evidence : judgement.evidence) {
            if (!places.contains(evidence.path))
                places += evidence.path;
        }
    }
    return places;
}

QJsonValue signatureJson(const PackageContents &contents)
{
    const PackageBundle *app = contents.app();
    if (app == nullptr || contents.binaryOf(*app) == nullptr)
        return QJsonValue::Null;
    const CodeSignature *signature = contents.signatureOf(*app);
    if (signature == nullptr)
        return QJsonObject{{u"verdict"_s, u"unsigned"_s},         {u"identifier"_s, QJsonValue::Null},
                           {u"team"_s, QJsonValue::Null},         {u"signer"_s, QJsonValue::Null},
                           {u"entitlements"_s, QJsonValue::Null}, {u"broken"_s, QJsonArray()}};
    const CodeDirectory *directory = signature->best();
    const QStringList broken = brokenPlaces(contents);
    const bool hasSigner = signature->signer && signature->signer->certificate;
    return QJsonObject{{u"verdict"_s, broken.isEmpty() ? u"valid"_s : u"broken"_s},
                       {u"identifier"_s, textOrNull(directory == nullptr ? QString() : directory->identifier)},
                       {u"team"_s, textOrNull(directory == nullptr ? QString() : directory->team)},
                       {u"signer"_s, textOrNull(hasSigner ? signature->signer->certificate->commonName : QString())},
                       {u"entitlements"_s, signature->entitlements
                                               ? QJsonValue(QJsonObject::fromVariantMap(*signature->entitlements))
                                               : QJsonValue(QJsonValue::Null)},
                       {u"broken"_s, QJsonArray::fromStringList(broken)}};
}

QJsonValue profileJson(const PackageContents &contents)
{
    const PackageBundle *app = contents.app();
    if (app == nullptr || !app->profile)
        return QJsonValue::Null;
    const ProvisioningProfile &profile = *app->profile;
    return QJsonObject{{u"kind"_s, profileKindName(profile.kind)},
                       {u"name"_s, textOrNull(profile.name)},
                       {u"team"_s, textOrNull(profile.teamIdentifier)},
                       {u"expires"_s, textOrNull(profile.expires.toString(Qt::ISODate))},
                       {u"devices"_s, QJsonArray::fromStringList(profile.devices)}};
}

QJsonValue catalogIconsJson(const PackageContents &contents)
{
    const PackageBundle *app = contents.app();
    if (app == nullptr || !app->catalog)
        return QJsonValue::Null;
    QJsonArray icons;
    for (const CatalogRendition &each : app->catalog->renditions) {
        if (each.part != CatalogRendition::IconPart || !each.isPicture())
            continue;
        icons += QJsonObject{{u"name"_s, each.name},
                             {u"width"_s, each.width},
                             {u"height"_s, each.height},
                             {u"scale"_s, each.scale},
                             {u"idiom"_s, each.idiom},
                             {u"appearance"_s, textOrNull(each.appearance)},
                             {u"opaque"_s, each.opaque ? QJsonValue(*each.opaque) : QJsonValue(QJsonValue::Null)}};
    }
    return icons;
}

} // namespace

QJsonObject reportJson(const QString &file, const PackageReport &report)
{
    const PackageFacts &facts = report.facts;
    const ArtworkFindings &findings = report.artwork.findings;
    const MetadataVerdicts verdicts = metadataVerdicts(facts);
    const QJsonObject checks{
        {u"icons"_s, QJsonObject{{u"valid"_s, findings.missingIcons.isEmpty()},
                                 {u"missing"_s, QJsonArray::fromStringList(squareTexts(findings.missingIcons))}}},
        {u"launchImages"_s,
         QJsonObject{{u"valid"_s, findings.missingLaunchImages.isEmpty()},
                     {u"missing"_s, QJsonArray::fromStringList(sizeTexts(findings.missingLaunchImages))}}},
        {u"bundleIdentifier"_s, QJsonObject{{u"valid"_s, verdicts.bundleIdentifierValid}}},
        {u"localizations"_s, QJsonObject{{u"valid"_s, verdicts.localizationsValid}}},
        {u"urlSchemes"_s, QJsonObject{{u"present"_s, verdicts.urlSchemesPresent}}},
        {u"facebookAppID"_s, QJsonObject{{u"present"_s, verdicts.facebookAppIDPresent}}},
    };
    const auto facebookAppID = facts.appFacebookID();
    return {
        {u"file"_s, file},
        {u"name"_s, facts.shownName()},
        {u"version"_s, facts.appVersion()},
        {u"platform"_s, facts.shownPlatform()},
        {u"minimumOS"_s, facts.shownMinimumOS()},
        {u"bundleIdentifier"_s, facts.appBundleIdentifier()},
        {u"build"_s, buildName(buildKind(facts))},
        {u"localizations"_s, QJsonArray::fromStringList(facts.appLocalizations)},
        {u"urlSchemes"_s, QJsonArray::fromStringList(facts.appURLSchemes().value_or(QStringList()))},
        {u"facebookAppID"_s, facebookAppID ? QJsonValue(*facebookAppID) : QJsonValue(QJsonValue::Null)},
        {u"checks"_s, checks},
    };
}

QJsonObject findingJson(const Finding &finding)
{
    const Rule &rule = *finding.rule;
    return {{u"id"_s, QString::fromLatin1(rule.id)},
            {u"code"_s, textOrNull(QString::fromLatin1(rule.code))},
            {u"severity"_s, severityName(rule.severity)},
            {u"title"_s, worded(rule.title)},
            {u"path"_s, textOrNull(finding.evidence.path)},
            {u"evidence"_s, finding.evidence.text},
            {u"fix"_s, worded(rule.fix)}};
}

QJsonObject storeJson(const PackageContents &contents, const QList<Finding> &findings)
{
    QJsonArray found;
    for (const Finding &finding : findings)
        found += findingJson(finding);
    QJsonArray binaries;
    for (const PackageBinary &binary : contents.binaries)
        binaries += binaryJson(binary);
    return {{u"findings"_s, found},
            {u"binaries"_s, binaries},
            {u"signature"_s, signatureJson(contents)},
            {u"profile"_s, profileJson(contents)},
            {u"catalogIcons"_s, catalogIconsJson(contents)}};
}

} // namespace lumora
