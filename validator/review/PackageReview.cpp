// SPDX-License-Identifier: MIT
#include "PackageReview.h"

#include "pictures/PictureReader.h"
#include "pictures/png/PngEncoder.h"
#include "validator/archive/OpenPackage.h"
#include "validator/bundle/BundleImages.h"
#include "validator/reports/PackageJson.h"
#include "validator/reports/PackagePage.h"
#include "validator/rules/ClassicVerdicts.h"

#include <QJsonArray>

#include <algorithm>
#include <atomic>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// A package that holds more of them is not shown whole.
constexpr qsizetype mostBundles = 200;

QString versionOf(const PackageBundle &bundle)
{
    const QString version = bundle.text(u"CFBundleShortVersionString"_s);
    const QString build = bundle.text(u"CFBundleVersion"_s);
    return version.isEmpty() || build.isEmpty() ? version + build : QString(version + u" ("_s + build + u')');
}

void listBundles(const PackageContents &contents, PackageReview &review)
{
    for (const PackageBundle &bundle : contents.bundles.first(std::min(mostBundles, contents.bundles.size()))) {
        if (bundle.kind != BundleKind::Resources)
            review.bundles += ReviewedBundle{bundle.path,
                                             bundle.kind,
                                             bundle.text(u"CFBundleIdentifier"_s),
                                             versionOf(bundle),
                                             bundle.text(u"MinimumOSVersion"_s),
                                             contents.signatureOf(bundle) != nullptr};
        if (!bundle.privacy)
            continue;
        const PrivacyManifest &manifest = *bundle.privacy;
        review.manifests += ReviewedManifest{bundle.path, manifest.tracks, manifest.trackingDomains.size(),
                                             manifest.collectedDataTypes, manifest.reasons};
    }
}

void listKinds(const PackageContents &contents, PackageReview &review)
{
    const FileTotals totals = totalsOf(contents);
    for (const QString &kind : fileKinds()) {
        if (totals.contains(kind))
            review.kinds += ReviewedKind{kind, totals.value(kind)};
    }
}

/// The first JPEG picture of the size in the app's catalog, in its usual appearance; null when there is none.
QImage jpegIcon(const AssetCatalog &catalog)
{
    for (const CatalogRendition &each : catalog.renditions) {
        if (each.jpeg.isEmpty() || !each.appearance.isEmpty())
            continue;
        const auto picture = readPicture(each.jpeg, each.name);
        if (picture && picture.value().size() == QSize(largeIconSize, largeIconSize))
            return picture.value();
    }
    return {};
}

void takeLargeIcon(const PackageSource &source, const PackageBundle &app, PackageReview &review)
{
    QImage icon = largeIcon(source, app.path);
    if (icon.isNull() && app.catalog) {
        icon = jpegIcon(*app.catalog);
        review.hasPackedIcon =
            icon.isNull() &&
            std::any_of(app.catalog->renditions.cbegin(), app.catalog->renditions.cend(), [](const auto &each) {
                return each.part == CatalogRendition::IconPart && each.isPicture() && each.width == largeIconSize;
            });
    }
    if (icon.isNull())
        return;
    if (const auto png = encodePng(icon, app.path))
        review.largeIcon = png.value();
}

/// Turns the sizes of single files into the part of the whole that was begun.
class Share
{
public:
    Share(const PackageSource &source, const ReaderProgress &progress) : m_progress(progress)
    {
        for (const PackageEntry &entry : source.entries())
            m_all += entry.size;
    }

    void begin(quint64 bytes)
    {
        if (!m_progress || m_all == 0)
            return;
        constexpr quint64 whole = 1000;
        // A damaged list of contents may promise less than there is.
        const quint64 done = std::min(m_begun += bytes, m_all);
        m_progress(static_cast<int>(static_cast<double>(done) / static_cast<double>(m_all) * whole));
    }

private:
    const ReaderProgress &m_progress;
    quint64 m_all = 0;
    std::atomic<quint64> m_begun = 0;
};

} // namespace

QList<Finding> PackageReview::findings(const QStringList &ignored) const
{
    QList<Finding> findings = findingsAmong(page.judged.verdicts);
    findings.removeIf([&](const Finding &each) { return ignored.contains(QLatin1StringView(each.rule->id)); });
    return findings;
}

PackageReview PackageReview::without(const QStringList &ignored) const
{
    PackageReview rest = *this;
    rest.page.judged.verdicts.removeIf(
        [&](const RuleVerdict &each) { return ignored.contains(QLatin1StringView(each.rule->id)); });
    QJsonArray found;
    for (const QJsonValue finding : json[u"findings"_s].toArray()) {
        if (!ignored.contains(finding.toObject()[u"id"_s].toString()))
            found += finding;
    }
    rest.json[u"findings"_s] = found;
    return rest;
}

Result<PackageReview> reviewPackage(const QString &path, const RuleSettings &settings, const ReaderProgress &progress)
{
    const auto source = openPackage(path);
    if (!source)
        return source.failure();
    Share share(*source.value(), progress);
    const PackageContents contents =
        readPackageContents(*source.value(), {}, [&share](quint64 bytes) { share.begin(bytes); });
    const CmsProfileDecoder decoder;
    const PackageReport report = inspectPackage(*source.value(), contents.reading, decoder);
    if (const Outcome outcome = reportOutcome(report); !outcome)
        return outcome.failure();
    if (contents.app() == nullptr)
        return Failure{FailureCode::MissingContent, path, "DETAIL_NO_APP"};

    PackageReview review;
    review.isOfOldTime = isOfOldTime(contents);
    const QList<RuleVerdict> verdicts = review.isOfOldTime ? classicVerdicts(report) : verdictsOn(contents, settings);
    review.json = reportJson(path, report);
    const QJsonObject store = storeJson(contents, review.isOfOldTime ? QList<Finding>() : findingsAmong(verdicts));
    for (auto member = store.begin(); member != store.end(); ++member)
        review.json.insert(member.key(), member.value());
    review.page = shownPackage({path, verdicts, {}}, report, review.json);
    review.page.sizes = sizeTree(contents.files);
    listBundles(contents, review);
    listKinds(contents, review);
    review.demands = deviceDemandsOf(contents);
    takeLargeIcon(*source.value(), *contents.app(), review);
    return review;
}

} // namespace lumora
