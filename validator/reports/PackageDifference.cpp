// SPDX-License-Identifier: MIT
#include "PackageDifference.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>
#include <QSet>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr qsizetype mostGrown = 10;

using NamedTexts = QMap<QString, QString>;

QString valueText(const QVariant &value)
{
    if (value.typeId() == QMetaType::QString)
        return value.toString();
    const QByteArray json = QJsonDocument(QJsonArray{QJsonValue::fromVariant(value)}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(json.sliced(1, json.size() - 2));
}

/// In the order of the names.
QList<ChangedFact> changesBetween(const NamedTexts &before, const NamedTexts &after)
{
    NamedTexts names = before;
    names.insert(after);
    QList<ChangedFact> changes;
    for (auto each = names.begin(); each != names.end(); ++each) {
        const QString &name = each.key();
        if (before.value(name) != after.value(name) || before.contains(name) != after.contains(name))
            changes += ChangedFact{name, before.value(name), after.value(name)};
    }
    return changes;
}

QList<std::pair<QString, QString>> factsOf(const PackageContents &contents)
{
    const PackageBundle &app = *contents.app();
    QStringList architectures;
    BinaryTarget target;
    if (const PackageBinary *binary = contents.binaryOf(app)) {
        for (const BinarySlice &slice : binary->facts.slices) {
            architectures += slice.architecture;
            if (!slice.targets.isEmpty())
                target = slice.targets.first();
        }
    }
    const bool isKnown = target.platform != BinaryPlatform::Unknown;
    const QString name = app.text(u"CFBundleDisplayName"_s);
    return {{u"name"_s, name.isEmpty() ? app.text(u"CFBundleName"_s) : name},
            {u"identifier"_s, app.text(u"CFBundleIdentifier"_s)},
            {u"version"_s, app.text(u"CFBundleShortVersionString"_s)},
            {u"build"_s, app.text(u"CFBundleVersion"_s)},
            {u"minimumOS"_s, app.text(u"MinimumOSVersion"_s)},
            {u"sdk"_s, isKnown ? target.sdk.text() : app.text(u"DTSDKName"_s)},
            {u"platform"_s, platformName(target.platform)},
            {u"architectures"_s, architectures.join(u", "_s)},
            {u"profile"_s, app.profile ? profileKindName(app.profile->kind) : QString()},
            {u"team"_s, app.profile ? app.profile->teamIdentifier : QString()}};
}

NamedTexts entitlementsIn(const PackageContents &contents)
{
    NamedTexts texts;
    const CodeSignature *signature = contents.signatureOf(*contents.app());
    if (signature == nullptr || !signature->entitlements)
        return texts;
    for (auto each = signature->entitlements->begin(); each != signature->entitlements->end(); ++each)
        texts.insert(each.key(), valueText(each.value()));
    return texts;
}

NamedTexts permissionsIn(const PackageContents &contents)
{
    NamedTexts texts;
    const PackageBundle &app = *contents.app();
    if (!app.info)
        return texts;
    QStringList keys = app.info->keys();
    for (const StringsTable &table : app.localized)
        keys += table.keys();
    for (const QString &key : std::as_const(keys)) {
        const QString text = app.shownText(key);
        if (key.startsWith(u"NS") && key.endsWith(u"UsageDescription"))
            texts.insert(key, text.isEmpty() ? valueText(app.info->value(key)) : text);
    }
    return texts;
}

/// From the app's folder, so that an app that was renamed is still the same.
QString pathInApp(const PackageContents &contents, const QString &path)
{
    const QString folder = contents.app()->path + u'/';
    return path.startsWith(folder) ? path.sliced(folder.size()) : path;
}

/// What makes a finding the same one in the other package.
QString identityOf(const PackageContents &contents, const Finding &finding)
{
    return QLatin1StringView(finding.rule->id) + u'\n' + pathInApp(contents, finding.evidence.path) + u'\n' +
           finding.evidence.text;
}

/// The findings of one package that the other has not.
QList<Finding> findingsOnlyIn(const ComparedPackage &one, const ComparedPackage &other)
{
    QSet<QString> known;
    for (const Finding &finding : other.findings)
        known += identityOf(other.contents, finding);
    QList<Finding> only;
    for (const Finding &finding : one.findings) {
        if (!known.contains(identityOf(one.contents, finding)))
            only += finding;
    }
    return only;
}

QList<KindTotals> kindsBetween(const FileTotals &before, const FileTotals &after)
{
    QList<KindTotals> kinds;
    for (const QString &name : fileKinds()) {
        if (before.contains(name) || after.contains(name))
            kinds += KindTotals{name, before.value(name), after.value(name)};
    }
    return kinds;
}

QMap<QString, quint64> sizesInApp(const PackageContents &contents)
{
    QMap<QString, quint64> sizes;
    for (const auto &[path, size] : contents.files)
        sizes.insert(pathInApp(contents, path), size);
    return sizes;
}

QList<GrownFile> growthBetween(const PackageContents &before, const PackageContents &after)
{
    const QMap<QString, quint64> old = sizesInApp(before);
    const QMap<QString, quint64> sizes = sizesInApp(after);
    QList<GrownFile> grown;
    for (auto each = sizes.begin(); each != sizes.end(); ++each) {
        if (each.value() > old.value(each.key()))
            grown += GrownFile{each.key(), old.value(each.key()), each.value()};
    }
    std::ranges::stable_sort(grown, [](const GrownFile &one, const GrownFile &other) {
        return one.after - one.before > other.after - other.before;
    });
    return grown.first(std::min(mostGrown, grown.size()));
}

} // namespace

PackageDifference differenceBetween(const ComparedPackage &before, const ComparedPackage &after)
{
    PackageDifference difference;
    const auto facts = factsOf(before.contents);
    const auto newFacts = factsOf(after.contents);
    for (qsizetype index = 0; index < facts.size(); ++index) {
        if (facts[index].second != newFacts[index].second)
            difference.facts += ChangedFact{facts[index].first, facts[index].second, newFacts[index].second};
    }
    difference.entitlements = changesBetween(entitlementsIn(before.contents), entitlementsIn(after.contents));
    difference.permissions = changesBetween(permissionsIn(before.contents), permissionsIn(after.contents));
    difference.gained = findingsOnlyIn(after, before);
    difference.lost = findingsOnlyIn(before, after);
    const FileTotals totals = totalsOf(before.contents);
    const FileTotals newTotals = totalsOf(after.contents);
    difference.all = {u"all"_s, totals.value(QString()), newTotals.value(QString())};
    difference.packedBefore = before.contents.packedSize;
    difference.packedAfter = after.contents.packedSize;
    difference.kinds = kindsBetween(totals, newTotals);
    difference.growth = growthBetween(before.contents, after.contents);
    return difference;
}

} // namespace lumora
