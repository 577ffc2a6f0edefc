// SPDX-License-Identifier: MIT
#include "ReviewJson.h"

#include "validator/rules/ClassicVerdicts.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// A list of each value's object, and back.
template <typename Value, typename Write> QJsonArray arrayOf(const QList<Value> &values, Write write)
{
    QJsonArray array;
    for (const Value &value : values)
        array += write(value);
    return array;
}

template <typename Read> auto listOf(const QJsonValue &value, Read read)
{
    QList<decltype(read(QJsonValue()))> list;
    for (const QJsonValue each : value.toArray())
        list += read(each);
    return list;
}

QStringList textsIn(const QJsonValue &value)
{
    return listOf(value, [](const QJsonValue &each) { return each.toString(); });
}

/// Never negative.
qint64 countIn(const QJsonValue &value)
{
    return std::max<qint64>(0, value.toInteger());
}

QJsonObject namedJson(const std::pair<QString, QString> &named)
{
    return {{u"name"_s, named.first}, {u"value"_s, named.second}};
}

std::pair<QString, QString> namedIn(const QJsonValue &value)
{
    return {value[u"name"_s].toString(), value[u"value"_s].toString()};
}

QJsonObject verdictJson(const RuleVerdict &verdict)
{
    return {{u"rule"_s, QString::fromLatin1(verdict.rule->id)},
            {u"state"_s, static_cast<int>(verdict.judgement.state)},
            {u"reason"_s, verdict.judgement.reason},
            {u"evidence"_s, arrayOf(verdict.judgement.evidence, [](const Evidence &evidence) {
                 return namedJson({evidence.path, evidence.text});
             })}};
}

RuleVerdict verdictIn(const QJsonValue &value)
{
    const QString id = value[u"rule"_s].toString();
    const Rule *rule = ruleNamed(id);
    RuleVerdict verdict{rule == nullptr ? classicRuleNamed(id) : rule, {}};
    verdict.judgement.state = static_cast<Judgement::State>(
        std::clamp(value[u"state"_s].toInt(), int{Judgement::Holds}, int{Judgement::Unknown}));
    verdict.judgement.reason = value[u"reason"_s].toString();
    for (const auto &[path, text] : listOf(value[u"evidence"_s], &namedIn))
        verdict.judgement.evidence += Evidence{path, text};
    return verdict;
}

QJsonObject sizeJson(const SizeNode &node)
{
    return {{u"name"_s, node.name},
            {u"bytes"_s, static_cast<qint64>(node.bytes)},
            {u"files"_s, node.files},
            {u"more"_s, node.more},
            {u"parts"_s, arrayOf(node.parts, &sizeJson)}};
}

SizeNode sizeIn(const QJsonValue &value)
{
    return {value[u"name"_s].toString(), static_cast<quint64>(countIn(value[u"bytes"_s])), countIn(value[u"files"_s]),
            listOf(value[u"parts"_s], &sizeIn), countIn(value[u"more"_s])};
}

QJsonObject bundleJson(const ReviewedBundle &bundle)
{
    return {{u"path"_s, bundle.path},
            {u"kind"_s, static_cast<int>(bundle.kind)},
            {u"identifier"_s, bundle.identifier},
            {u"version"_s, bundle.version},
            {u"minimum"_s, bundle.minimumSystem},
            {u"signed"_s, bundle.isSigned}};
}

ReviewedBundle bundleIn(const QJsonValue &value)
{
    const int kind = std::clamp(value[u"kind"_s].toInt(), static_cast<int>(BundleKind::App),
                                static_cast<int>(BundleKind::Resources));
    return {value[u"path"_s].toString(),    static_cast<BundleKind>(kind),  value[u"identifier"_s].toString(),
            value[u"version"_s].toString(), value[u"minimum"_s].toString(), value[u"signed"_s].toBool()};
}

QJsonObject manifestJson(const ReviewedManifest &manifest)
{
    QJsonObject reasons;
    for (auto each = manifest.reasons.begin(); each != manifest.reasons.end(); ++each)
        reasons.insert(each.key(), QJsonArray::fromStringList(each.value()));
    return {{u"path"_s, manifest.path},
            {u"tracks"_s, manifest.tracks},
            {u"domains"_s, manifest.trackingDomains},
            {u"collected"_s, manifest.collectedDataTypes},
            {u"reasons"_s, reasons}};
}

ReviewedManifest manifestIn(const QJsonValue &value)
{
    ReviewedManifest manifest{value[u"path"_s].toString(),
                              value[u"tracks"_s].toBool(),
                              countIn(value[u"domains"_s]),
                              countIn(value[u"collected"_s]),
                              {}};
    const QJsonObject reasons = value[u"reasons"_s].toObject();
    for (auto each = reasons.begin(); each != reasons.end(); ++each)
        manifest.reasons.insert(each.key(), textsIn(each.value()));
    return manifest;
}

QJsonObject kindJson(const ReviewedKind &kind)
{
    return {
        {u"kind"_s, kind.kind}, {u"files"_s, kind.total.files}, {u"bytes"_s, static_cast<qint64>(kind.total.bytes)}};
}

ReviewedKind kindIn(const QJsonValue &value)
{
    return {value[u"kind"_s].toString(),
            {countIn(value[u"files"_s]), static_cast<quint64>(countIn(value[u"bytes"_s]))}};
}

QString base64(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toBase64());
}

QByteArray pngIn(const QJsonValue &value)
{
    return QByteArray::fromBase64(value.toString().toLatin1());
}

} // namespace

QByteArray bytesOf(const PackageReview &review)
{
    const ShownPackage &page = review.page;
    const QJsonObject object{
        {u"old"_s, review.isOfOldTime},
        {u"file"_s, page.judged.file},
        {u"verdicts"_s, arrayOf(page.judged.verdicts, &verdictJson)},
        {u"icon"_s, base64(page.iconPng)},
        {u"facts"_s, arrayOf(page.facts, &namedJson)},
        {u"signature"_s, arrayOf(page.signature, &namedJson)},
        {u"sizes"_s, sizeJson(page.sizes)},
        {u"json"_s, review.json},
        {u"bundles"_s, arrayOf(review.bundles, &bundleJson)},
        {u"manifests"_s, arrayOf(review.manifests, &manifestJson)},
        {u"kinds"_s, arrayOf(review.kinds, &kindJson)},
        {u"minimum"_s, review.demands.minimumSystem},
        {u"padOnly"_s, review.demands.padOnly},
        {u"capabilities"_s, QJsonArray::fromStringList(review.demands.capabilities)},
        {u"otherDevice"_s, review.demands.otherDevice},
        {u"largeIcon"_s, base64(review.largeIcon)},
        {u"packedIcon"_s, review.hasPackedIcon},
    };
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<PackageReview> reviewIn(const QByteArray &bytes)
{
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    if (!document.isObject() || !document[u"verdicts"_s].isArray())
        return {};
    PackageReview review;
    review.isOfOldTime = document[u"old"_s].toBool();
    ShownPackage &page = review.page;
    page.judged.file = document[u"file"_s].toString();
    page.judged.verdicts = listOf(document[u"verdicts"_s], &verdictIn);
    page.judged.verdicts.removeIf([](const RuleVerdict &verdict) { return verdict.rule == nullptr; });
    page.iconPng = pngIn(document[u"icon"_s]);
    page.facts = listOf(document[u"facts"_s], &namedIn);
    page.signature = listOf(document[u"signature"_s], &namedIn);
    page.sizes = sizeIn(document[u"sizes"_s]);
    review.json = document[u"json"_s].toObject();
    review.bundles = listOf(document[u"bundles"_s], &bundleIn);
    review.manifests = listOf(document[u"manifests"_s], &manifestIn);
    review.kinds = listOf(document[u"kinds"_s], &kindIn);
    review.demands = {document[u"minimum"_s].toString(), document[u"padOnly"_s].toBool(),
                      textsIn(document[u"capabilities"_s]), document[u"otherDevice"_s].toString()};
    review.largeIcon = pngIn(document[u"largeIcon"_s]);
    review.hasPackedIcon = document[u"packedIcon"_s].toBool();
    return review;
}

} // namespace lumora
