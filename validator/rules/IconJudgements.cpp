// SPDX-License-Identifier: MIT
#include "Judging.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int marketingEdge = 1024;

QString noPhoneApp()
{
    return worded("FOUND_NO_PHONE_OR_PAD");
}

/// The icon set's name in a dictionary of icons ("CFBundleIcons", or with "~ipad").
QString iconName(const PackageBundle &app, const QString &key)
{
    const QVariantMap icons = app.info ? app.info->value(key).toMap() : QVariantMap();
    return icons.value(u"CFBundlePrimaryIcon"_s).toMap().value(u"CFBundleIconName"_s).toString();
}

QString anyIconName(const PackageBundle &app)
{
    for (const QString &name :
         {iconName(app, u"CFBundleIcons"_s), iconName(app, u"CFBundleIcons~ipad"_s), app.text(u"CFBundleIconName"_s)}) {
        if (!name.isEmpty())
            return name;
    }
    return {};
}

/// The pictures of the app's icon in its catalog.
QList<CatalogRendition> iconPictures(const PackageBundle &app)
{
    QList<CatalogRendition> pictures;
    if (!app.catalog)
        return pictures;
    const QString name = anyIconName(app);
    for (const CatalogRendition &each : app.catalog->renditions) {
        const bool named = !name.isEmpty() && each.facet == name;
        if (each.isPicture() && (named || each.part == CatalogRendition::IconPart))
            pictures += each;
    }
    return pictures;
}

bool fitsPhone(const CatalogRendition &picture)
{
    return picture.idiom == "phone"_L1 || picture.idiom == "universal"_L1 || picture.idiom == "marketing"_L1;
}

bool fitsPad(const CatalogRendition &picture)
{
    return picture.idiom == "pad"_L1 || picture.idiom == "universal"_L1 || picture.idiom == "marketing"_L1;
}

bool catalogHolds(const PackageBundle &app, int edge, bool (*fits)(const CatalogRendition &))
{
    return std::ranges::any_of(iconPictures(app), [&](const CatalogRendition &picture) {
        return picture.width == edge && picture.height == edge && fits(picture);
    });
}

/// The size of loose pictures comes from their names only: "AppIcon60x60@2x.png" is 120 pixels square.
bool looseIconHas(const PackageContents &contents, int edge)
{
    static const QRegularExpression form(u"(\\d+(?:\\.\\d+)?)x\\1(?:@(\\d)x)?(?:~\\w+)?\\.png$"_s);
    const QString start = contents.app()->path + u'/';
    for (const auto &[path, size] : contents.files) {
        if (!path.startsWith(start) || path.indexOf(u'/', start.size()) >= 0)
            continue;
        const auto match = form.match(path);
        if (!match.hasMatch())
            continue;
        const double factor = match.hasCaptured(2) ? match.captured(2).toDouble() : 1.0;
        if (qRound(match.captured(1).toDouble() * factor) == edge)
            return true;
    }
    return false;
}

/// The icon files in the Info.plist. They may have any name, so their sizes are not known.
bool namesLooseIcons(const PackageBundle &app)
{
    return app.has(u"CFBundleIconFiles"_s) || app.has(u"CFBundleIconFile"_s) ||
           (app.info && !app.info->value(u"CFBundleIcons"_s)
                             .toMap()
                             .value(u"CFBundlePrimaryIcon"_s)
                             .toMap()
                             .value(u"CFBundleIconFiles"_s)
                             .toList()
                             .isEmpty());
}

QString catalogPath(const PackageBundle &app)
{
    return app.path + u"/Assets.car";
}

/// Whether the catalogue may hold more than could be read of it.
bool isCatalogCutOff(const PackageBundle &app)
{
    return app.catalog && !app.catalog->faults.isEmpty();
}

Judgement judgeSizes(const PackageContents &contents, const QList<int> &edges, const QString &device,
                     bool (*fits)(const CatalogRendition &))
{
    const PackageBundle &app = *contents.app();
    if (!app.info)
        return cannotBeKnown(worded("FOUND_INFO_UNREADABLE"));
    QList<Evidence> missing;
    for (const int edge : edges) {
        if (catalogHolds(app, marketingEdge, fits) || catalogHolds(app, edge, fits) || looseIconHas(contents, edge))
            continue;
        if (!app.catalog && namesLooseIcons(app))
            return cannotBeKnown(worded("FOUND_ICON_NAMES"));
        if (isCatalogCutOff(app))
            return cannotBeKnown(worded("FOUND_CATALOG_CUT_OFF"));
        missing += Evidence{app.catalog ? catalogPath(app) : app.path,
                            worded("FOUND_NO_ICON", {device, QString::number(edge)})};
    }
    return brokenBy(missing);
}

} // namespace

Judgement judgePhoneIcon(const PackageContents &contents, const RuleSettings &)
{
    const PackageBundle *app = contents.app();
    if (!isPhoneApp(contents) || !deviceFamilies(*app).contains(1))
        return notApplicable(worded("FOUND_NO_PHONE"));
    if (!minimumSystem(*app).isNull() && minimumSystem(*app) < QVersionNumber(7))
        return notApplicable(worded("FOUND_BEFORE_IOS_7"));
    return judgeSizes(contents, {120}, u"iPhone"_s, &fitsPhone);
}

Judgement judgePadIcon(const PackageContents &contents, const RuleSettings &)
{
    const PackageBundle *app = contents.app();
    if (!isPhoneApp(contents) || !deviceFamilies(*app).contains(2))
        return notApplicable(worded("FOUND_NO_PAD"));
    if (!minimumSystem(*app).isNull() && minimumSystem(*app) < QVersionNumber(7))
        return notApplicable(worded("FOUND_BEFORE_IOS_7"));
    return judgeSizes(contents, {152}, u"iPad"_s, &fitsPad);
}

Judgement judgePadProIcon(const PackageContents &contents, const RuleSettings &settings)
{
    const Judgement pad = judgePadIcon(contents, settings);
    if (pad.state == Judgement::Broken)
        return notApplicable(worded("FOUND_NO_PAD_ICON"));
    if (pad.state != Judgement::Holds)
        return pad;
    if (sdkOf(contents) < QVersionNumber(9))
        return notApplicable(worded("FOUND_BEFORE_IOS_9"));
    return judgeSizes(contents, {167}, u"iPad Pro"_s, &fitsPad);
}

Judgement judgeMarketingIcon(const PackageContents &contents, const RuleSettings &)
{
    if (!isPhoneApp(contents))
        return notApplicable(noPhoneApp());
    const PackageBundle &app = *contents.app();
    if (sdkOf(contents) < QVersionNumber(11))
        return notApplicable(worded("FOUND_BEFORE_IOS_11"));
    if (!app.catalog && contents.holds(catalogPath(app)))
        return brokenBy({{catalogPath(app), worded("FOUND_UNREADABLE")}});
    if (!app.catalog)
        return brokenBy({{app.path, worded("FOUND_NO_CATALOG")}});
    const bool found = std::ranges::any_of(iconPictures(app), [](const CatalogRendition &picture) {
        return picture.width == marketingEdge && picture.height == marketingEdge &&
               (fitsPhone(picture) || fitsPad(picture));
    });
    if (!found && isCatalogCutOff(app))
        return cannotBeKnown(worded("FOUND_CATALOG_CUT_OFF"));
    return found ? holds() : brokenBy({{catalogPath(app), worded("FOUND_NO_LARGE_ICON")}});
}

Judgement judgeIconName(const PackageContents &contents, const RuleSettings &)
{
    if (!isPhoneApp(contents))
        return notApplicable(noPhoneApp());
    const PackageBundle &app = *contents.app();
    if (sdkOf(contents) < QVersionNumber(11))
        return notApplicable(worded("FOUND_BEFORE_IOS_11"));
    if (!app.info)
        return cannotBeKnown(worded("FOUND_INFO_UNREADABLE"));
    const QString name = anyIconName(app);
    if (name.isEmpty())
        return brokenBy({{infoPath(app), worded("FOUND_NO_ICON_NAME")}});
    if (app.catalog && !app.catalog->facets.contains(name) && isCatalogCutOff(app))
        return cannotBeKnown(worded("FOUND_CATALOG_CUT_OFF"));
    if (app.catalog && !app.catalog->facets.contains(name))
        return brokenBy({{infoPath(app), worded("FOUND_UNKNOWN_ICON_NAME", {name})}});
    return holds();
}

Judgement judgeOpaqueIcon(const PackageContents &contents, const RuleSettings &)
{
    if (!isPhoneApp(contents))
        return notApplicable(noPhoneApp());
    const PackageBundle &app = *contents.app();
    QList<Evidence> translucent;
    bool found = false;
    for (const CatalogRendition &picture : iconPictures(app)) {
        // The dark and the tinted picture may be translucent.
        if (picture.width != marketingEdge || !picture.appearance.isEmpty())
            continue;
        found = true;
        if (picture.opaque == false)
            translucent += Evidence{catalogPath(app), worded("FOUND_TRANSLUCENT", {picture.name, picture.idiom})};
    }
    return found ? brokenBy(translucent) : notApplicable(worded("FOUND_NO_LARGE_IN_CATALOG"));
}

} // namespace lumora
