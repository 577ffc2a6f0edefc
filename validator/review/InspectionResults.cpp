// SPDX-License-Identifier: MIT
#include "InspectionResults.h"

#include "validator/bundle/BundleImages.h"

#include <QCborArray>
#include <QCborMap>
#include <QCborValue>

#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// More than the tables of sizes hold.
constexpr qsizetype mostSizes = 100;
/// The largest icon, in pixels each way: `appIconSize` at the largest scale.
constexpr int largestIcon = appIconSize * 8;
constexpr auto pixelFormat = QImage::Format_RGBA8888_Premultiplied;
constexpr qsizetype pixelBytes = 4;

class Passing final : public InspectionObserver
{
public:
    explicit Passing(const InspectionResults &results) : m_results(results) {}

    void gathered(const PackageFacts &facts, const Extraction &extraction) override
    {
        GatheredFacts gathered{facts, extraction, {}};
        if (!facts.hasApp)
            gathered.found = foundContent(facts.ipaPath);
        m_results.gathered(gathered);
    }
    void validated(const ArtworkReport &artwork) override { m_results.validated(artwork); }

private:
    const InspectionResults &m_results;
};

/// Nothing of bytes that are no map or are cut off, of which the toolkit would give the first part.
std::optional<QCborValue> mapIn(const QByteArray &bytes)
{
    QCborParserError error;
    const QCborValue map = QCborValue::fromCbor(bytes, &error);
    return map.isMap() && error.error == QCborError::NoError ? std::optional(map) : std::nullopt;
}

QStringList textsIn(const QCborValue &value)
{
    QStringList texts;
    for (const QCborValue each : value.toArray())
        texts += each.toString();
    return texts;
}

/// The whole number; 0 for any other value. Qt converts fractions of any size, which is undefined for large ones.
qint64 integerIn(const QCborValue &value)
{
    return value.isInteger() ? value.toInteger() : 0;
}

/// The enumerator of the number; the last one for a number out of range.
template <typename Enum> Enum enumIn(const QCborValue &value, Enum last)
{
    return static_cast<Enum>(std::clamp<qint64>(integerIn(value), 0, static_cast<qint64>(last)));
}

QCborValue cbor(const LocalizedInfo &info)
{
    QCborMap languages;
    for (auto language = info.cbegin(); language != info.cend(); ++language) {
        QCborMap texts;
        for (auto text = language->cbegin(); text != language->cend(); ++text)
            texts.insert(text.key(), text.value());
        languages.insert(language.key(), texts);
    }
    return languages;
}

LocalizedInfo localizedInfoIn(const QCborValue &value)
{
    LocalizedInfo info;
    const QCborMap languages = value.toMap();
    for (const auto &[language, texts] : languages) {
        for (const auto &[key, text] : texts.toMap())
            info[language.toString()].insert(key.toString(), text.toString());
    }
    return info;
}

QCborValue cbor(const std::optional<FoundContent> &found)
{
    if (!found)
        return nullptr;
    return QCborMap{{u"kind"_s, static_cast<int>(found->kind)},
                    {u"names"_s, QCborArray::fromStringList(found->names)},
                    {u"count"_s, found->nameCount},
                    {u"payload"_s, found->hasPayload}};
}

std::optional<FoundContent> foundIn(const QCborValue &value)
{
    if (!value.isMap())
        return {};
    const QStringList names = textsIn(value[u"names"_s]);
    return FoundContent{enumIn(value[u"kind"_s], FoundKind::ArchiveWithoutApp),
                        names.first(std::min(names.size(), FoundContent::mostNames)),
                        std::max<qint64>(0, integerIn(value[u"count"_s])), value[u"payload"_s].toBool()};
}

QCborValue cbor(const QImage &icon)
{
    if (icon.isNull())
        return nullptr;
    const QImage picture = icon.convertToFormat(pixelFormat);
    QByteArray pixels;
    for (int y = 0; y < picture.height(); ++y)
        pixels.append(reinterpret_cast<const char *>(picture.constScanLine(y)), picture.width() * pixelBytes);
    return QCborMap{{u"width"_s, picture.width()}, {u"height"_s, picture.height()}, {u"pixels"_s, pixels}};
}

QImage iconIn(const QCborValue &value)
{
    const qint64 width = integerIn(value[u"width"_s]);
    const qint64 height = integerIn(value[u"height"_s]);
    const QByteArray pixels = value[u"pixels"_s].toByteArray();
    if (width < 1 || height < 1 || width > largestIcon || height > largestIcon ||
        pixels.size() != width * height * pixelBytes)
        return {};
    QImage icon(static_cast<int>(width), static_cast<int>(height), pixelFormat);
    for (int y = 0; y < icon.height(); ++y)
        std::memcpy(icon.scanLine(y), pixels.constData() + y * width * pixelBytes,
                    static_cast<std::size_t>(width * pixelBytes));
    return icon;
}

} // namespace

void inspectHere(const QString &path, const InspectionSite &site, const InspectionResults &results)
{
    Passing observer(results);
    PackageInspection(path, site.profileDecoder, observer).unzipApp(site);
}

QByteArray bytesOf(const GatheredFacts &gathered)
{
    const PackageFacts &facts = gathered.facts;
    const Outcome &outcome = gathered.extraction.outcome;
    const QCborMap map{
        {u"folder"_s, facts.appContentFolderPath},
        {u"info"_s, facts.appInfoPlist ? QCborValue(QCborMap::fromVariantMap(*facts.appInfoPlist)) : nullptr},
        {u"localized"_s, cbor(facts.localizedInfo)},
        {u"localizations"_s, QCborArray::fromStringList(facts.appLocalizations)},
        {u"images"_s, QCborArray::fromStringList(facts.appImages)},
        {u"profile"_s, facts.provisioningProfile ? QCborValue(*facts.provisioningProfile) : nullptr},
        {u"app"_s, facts.hasApp},
        {u"mac"_s, facts.isMacApp},
        {u"failure"_s, outcome ? QCborValue(nullptr) : QCborValue(static_cast<int>(outcome.failure().code))},
        {u"damaged"_s, QCborArray::fromStringList(gathered.extraction.damagedEntries)},
        {u"found"_s, cbor(gathered.found)},
    };
    return map.toCborValue().toCbor();
}

std::optional<GatheredFacts> gatheredFactsIn(const QByteArray &bytes, const QString &path)
{
    const auto whole = mapIn(bytes);
    if (!whole)
        return {};
    const QCborValue &map = *whole;
    GatheredFacts gathered;
    PackageFacts &facts = gathered.facts;
    facts.ipaPath = path;
    facts.appContentFolderPath = map[u"folder"_s].toString();
    if (const QCborValue info = map[u"info"_s]; info.isMap())
        facts.appInfoPlist = info.toMap().toVariantMap();
    facts.localizedInfo = localizedInfoIn(map[u"localized"_s]);
    facts.appLocalizations = textsIn(map[u"localizations"_s]);
    facts.appImages = textsIn(map[u"images"_s]);
    if (const QCborValue profile = map[u"profile"_s]; profile.isString())
        facts.provisioningProfile = profile.toString();
    facts.hasApp = map[u"app"_s].toBool();
    facts.isMacApp = map[u"mac"_s].toBool();
    if (const QCborValue failure = map[u"failure"_s]; failure.isInteger())
        gathered.extraction.outcome = Failure{enumIn(failure, FailureCode::LeadsOutside), path, {}};
    gathered.extraction.damagedEntries = textsIn(map[u"damaged"_s]);
    gathered.found = foundIn(map[u"found"_s]);
    return gathered;
}

QByteArray bytesOf(const ArtworkReport &artwork)
{
    QCborArray icons;
    for (const int edge : artwork.findings.missingIcons)
        icons += edge;
    QCborArray launchImages;
    for (const QSize size : artwork.findings.missingLaunchImages)
        launchImages += QCborArray{size.width(), size.height()};
    const QCborMap map{{u"icons"_s, icons}, {u"launchImages"_s, launchImages}, {u"icon"_s, cbor(artwork.appIcon)}};
    return map.toCborValue().toCbor();
}

std::optional<ArtworkReport> artworkIn(const QByteArray &bytes)
{
    const auto whole = mapIn(bytes);
    if (!whole)
        return {};
    const QCborValue &map = *whole;
    const QCborArray icons = map[u"icons"_s].toArray();
    const QCborArray launchImages = map[u"launchImages"_s].toArray();
    if (icons.size() > mostSizes || launchImages.size() > mostSizes)
        return {};
    ArtworkReport artwork;
    for (const QCborValue edge : icons)
        artwork.findings.missingIcons += static_cast<int>(integerIn(edge));
    for (const QCborValue size : launchImages)
        artwork.findings.missingLaunchImages +=
            QSize(static_cast<int>(integerIn(size[0])), static_cast<int>(integerIn(size[1])));
    artwork.appIcon = iconIn(map[u"icon"_s]);
    return artwork;
}

} // namespace lumora
