// SPDX-License-Identifier: MIT
#include "ResourceSeal.h"

#include "validator/bundle/PropertyList.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// Enough for about 60,000 files with two hashes each.
constexpr PropertyListLimits sealLimits{
    .fileBytes = 24 << 20, .values = 600'000, .expandedBytes = 48 << 20, .depth = 16, .containers = 200'000};
constexpr qsizetype mostRules = 64;
constexpr qsizetype longestPattern = 512;

SealedFile sealedFile(const QVariant &value)
{
    SealedFile file;
    if (value.typeId() == QMetaType::QByteArray) {
        file.sha1 = value.toByteArray();
        return file;
    }
    const QVariantMap map = value.toMap();
    file.sha1 = map.value(u"hash"_s).toByteArray();
    file.sha256 = map.value(u"hash2"_s).toByteArray();
    file.codeHash = map.value(u"cdhash"_s).toByteArray();
    file.linkTarget = map.value(u"symlink"_s).toString();
    file.optional = map.value(u"optional"_s).toBool();
    return file;
}

SealRule sealRule(const QString &pattern, const QVariant &value)
{
    SealRule rule{pattern};
    if (value.typeId() == QMetaType::QVariantMap) {
        const QVariantMap map = value.toMap();
        rule.weight = map.value(u"weight"_s, 1.0).toDouble();
        rule.omit = map.value(u"omit"_s).toBool();
    } else {
        // A rule with the value false excludes files.
        rule.omit = !value.toBool();
    }
    return rule;
}

/// A compiled rule. The pattern is foreign, so it includes a limit for its search.
struct ReadyRule
{
    QRegularExpression expression;
    double weight;
    bool omit;
};

QList<ReadyRule> readyRules(const QList<SealRule> &rules)
{
    QList<ReadyRule> ready;
    for (const SealRule &rule : rules) {
        if (rule.pattern.size() > longestPattern || ready.size() >= mostRules)
            continue;
        const QRegularExpression expression(u"(*LIMIT_MATCH=2000)"_s + rule.pattern);
        if (expression.isValid())
            ready += ReadyRule{expression, rule.weight, rule.omit};
    }
    // Of two rules with the same weight the excluding one wins, as it is the intended exception.
    std::ranges::stable_sort(ready, [](const ReadyRule &one, const ReadyRule &other) {
        return one.weight != other.weight ? one.weight > other.weight : one.omit && !other.omit;
    });
    return ready;
}

/// True when the matching rule of the largest weight excludes the path, or no rule matches.
bool isLeftOut(const QString &path, const QList<ReadyRule> &rules)
{
    for (const ReadyRule &rule : rules) {
        if (rule.expression.match(path).hasMatch())
            return rule.omit;
    }
    return true;
}

/// Files that are never sealed: the seal itself, the old link to it, the store's receipts.
bool isNeverSealed(const QString &path, const BundleFile &file, const SealSubject &subject)
{
    const bool isOldLink =
        path == "CodeResources"_L1 && file.isLink && file.linkTarget == "_CodeSignature/CodeResources"_L1;
    return path == subject.executable || isOldLink || path.startsWith("_CodeSignature/"_L1) ||
           path.startsWith("SC_Info/"_L1);
}

bool isInside(const QString &path, const QString &folder)
{
    return path.size() > folder.size() && path.startsWith(folder) && path[folder.size()] == u'/';
}

bool matches(const SealedFile &sealed, const BundleFile &file)
{
    if (file.isLink || !sealed.linkTarget.isEmpty())
        return file.isLink && file.linkTarget == sealed.linkTarget;
    if (!file.digests)
        return false;
    if (!sealed.sha256.isEmpty())
        return sealed.sha256 == QByteArrayView(file.digests->sha256);
    return sealed.sha1 == QByteArrayView(file.digests->sha1);
}

} // namespace

std::optional<ResourceSeal> readResourceSeal(const QByteArray &bytes)
{
    const auto list = propertyListDictionary(bytes, sealLimits);
    if (!list || (!list->contains(u"files"_s) && !list->contains(u"files2"_s)))
        return std::nullopt;
    ResourceSeal seal;
    seal.hasNewList = list->contains(u"files2"_s);
    const QVariantMap files = list->value(seal.hasNewList ? u"files2"_s : u"files"_s).toMap();
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        seal.files.insert(file.key(), sealedFile(file.value()));
    const QVariantMap rules = list->value(seal.hasNewList ? u"rules2"_s : u"rules"_s).toMap();
    for (auto rule = rules.cbegin(); rule != rules.cend(); ++rule)
        seal.rules += sealRule(rule.key(), rule.value());
    return seal;
}

SealFindings compareWithSeal(const ResourceSeal &seal, const QMap<QStringView, BundleFile> &files,
                             const SealSubject &subject)
{
    SealFindings findings;
    QStringList nested;
    for (auto sealed = seal.files.cbegin(); sealed != seal.files.cend(); ++sealed) {
        if (!sealed->codeHash.isEmpty()) {
            nested += sealed.key();
            const auto hashes = subject.nestedHashes.constFind(sealed.key());
            if (hashes == subject.nestedHashes.cend())
                findings.missing += sealed.key();
            else if (!hashes->contains(sealed->codeHash))
                findings.changed += sealed.key();
            continue;
        }
        const auto file = files.constFind(sealed.key());
        if (file == files.cend()) {
            if (!sealed->optional)
                findings.missing += sealed.key();
        } else if (!matches(*sealed, *file)) {
            findings.changed += sealed.key();
        }
    }
    const QList<ReadyRule> rules = readyRules(seal.rules);
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        const QString path = file.key().toString();
        if (seal.files.contains(path) || isNeverSealed(path, *file, subject))
            continue;
        // Nested code seals its own files.
        if (std::ranges::any_of(nested, [&](const QString &code) { return isInside(path, code); }))
            continue;
        if (!isLeftOut(path, rules))
            findings.extra += path;
    }
    return findings;
}

} // namespace lumora
