// SPDX-License-Identifier: MIT
#include "Judging.h"

#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

const QString unreadable = u"the Info.plist cannot be read"_s;

QStringList textsIn(const PackageBundle &bundle, const QString &key)
{
    return bundle.info ? bundle.info->value(key).toStringList() : QStringList();
}

bool isVersion(const QString &text)
{
    static const QRegularExpression form(u"^\\d+(\\.\\d+){0,2}$"_s);
    return form.match(text).hasMatch();
}

/// Only iPad apps that share the screen must support all orientations.
bool sharesTheScreen(const PackageBundle &app)
{
    return deviceFamilies(app).contains(2) && !app.info->value(u"UIRequiresFullScreen"_s).toBool() &&
           minimumSystem(app) >= QVersionNumber(9);
}

} // namespace

Judgement judgePadOrientations(const PackageContents &contents, const RuleSettings &)
{
    if (!isPhoneApp(contents))
        return notApplicable(u"no app for the iPad"_s);
    const PackageBundle &app = *contents.app();
    if (!app.info)
        return cannotBeKnown(unreadable);
    if (!sharesTheScreen(app))
        return notApplicable(u"it asks for the whole screen, or is for no iPad with multitasking"_s);
    const QString key = app.has(u"UISupportedInterfaceOrientations~ipad"_s) ? u"UISupportedInterfaceOrientations~ipad"_s
                                                                            : u"UISupportedInterfaceOrientations"_s;
    const QStringList listed = textsIn(app, key);
    QStringList missing;
    for (const QString &each : {u"Portrait"_s, u"PortraitUpsideDown"_s, u"LandscapeLeft"_s, u"LandscapeRight"_s}) {
        if (!listed.contains(u"UIInterfaceOrientation"_s + each))
            missing += each;
    }
    if (missing.isEmpty())
        return holds();
    return brokenBy({{infoPath(app), u"%1 lacks %2"_s.arg(key, missing.join(u", "_s))}});
}

Judgement judgeLaunchScreen(const PackageContents &contents, const RuleSettings &)
{
    if (!isPhoneApp(contents))
        return notApplicable(u"no app for the iPad"_s);
    const PackageBundle &app = *contents.app();
    if (!app.info)
        return cannotBeKnown(unreadable);
    if (!sharesTheScreen(app))
        return notApplicable(u"it asks for the whole screen, or is for no iPad with multitasking"_s);
    for (const QString &key : {u"UILaunchStoryboardName"_s, u"UILaunchStoryboardName~ipad"_s, u"UILaunchScreen"_s,
                               u"UILaunchScreen~ipad"_s, u"UILaunchScreens"_s}) {
        if (app.has(key))
            return holds();
    }
    return brokenBy({{infoPath(app), u"neither UILaunchStoryboardName nor UILaunchScreen"_s}});
}

Judgement judgePackageType(const PackageContents &contents, const RuleSettings &)
{
    const PackageBundle &app = *contents.app();
    if (!app.info)
        return brokenBy({{infoPath(app), u"there is none that can be read"_s}});
    const QString type = app.text(u"CFBundlePackageType"_s);
    return type == "APPL"_L1 ? holds() : brokenBy({{infoPath(app), u"CFBundlePackageType is \"%1\""_s.arg(type)}});
}

Judgement judgeMinimumSystem(const PackageContents &contents, const RuleSettings &settings)
{
    if (!isPhoneApp(contents))
        return notApplicable(u"no app for iPhone or iPad"_s);
    if (settings.on < QDate(2026, 6, 1))
        return notApplicable(u"not announced on that day"_s);
    const QVersionNumber minimum = minimumSystem(*contents.app());
    if (minimum.isNull())
        return cannotBeKnown(u"the Info.plist names no MinimumOSVersion"_s);
    if (minimum >= QVersionNumber(15))
        return holds();
    return brokenBy({{infoPath(*contents.app()), u"MinimumOSVersion is %1"_s.arg(minimum.toString())}});
}

Judgement judgeNestedVersions(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    for (const PackageBundle *bundle : codeBundles(contents)) {
        if (!bundle->info)
            continue;
        const QString version = bundle->text(u"CFBundleShortVersionString"_s);
        if (version.isEmpty())
            bad += Evidence{infoPath(*bundle), u"no CFBundleShortVersionString"_s};
        else if (!isVersion(version))
            bad += Evidence{infoPath(*bundle), u"CFBundleShortVersionString is \"%1\""_s.arg(version)};
        const QString build = bundle->text(u"CFBundleVersion"_s);
        if (build.isEmpty())
            bad += Evidence{infoPath(*bundle), u"no CFBundleVersion"_s};
        else if (bundle->kind != BundleKind::Framework && !isVersion(build))
            bad += Evidence{infoPath(*bundle), u"CFBundleVersion is \"%1\""_s.arg(build)};
    }
    return brokenBy(bad);
}

Judgement judgeExtensionVersions(const PackageContents &contents, const RuleSettings &)
{
    const PackageBundle &app = *contents.app();
    QList<Evidence> different;
    bool found = false;
    for (const PackageBundle &bundle : contents.bundles) {
        if (bundle.kind != BundleKind::Extension || !bundle.info)
            continue;
        found = true;
        for (const QString &key : {u"CFBundleShortVersionString"_s, u"CFBundleVersion"_s}) {
            if (bundle.text(key) != app.text(key))
                different += Evidence{infoPath(bundle),
                                      u"%1 is \"%2\", the app's is \"%3\""_s.arg(key, bundle.text(key), app.text(key))};
        }
    }
    return found ? brokenBy(different) : notApplicable(u"there is no extension"_s);
}

Judgement judgeIdentifiersOnce(const PackageContents &contents, const RuleSettings &)
{
    QMap<QString, QStringList> places;
    for (const PackageBundle *bundle : codeBundles(contents)) {
        const QString identifier = bundle->text(u"CFBundleIdentifier"_s);
        if (!identifier.isEmpty())
            places[identifier] += bundle->path;
    }
    QList<Evidence> twice;
    for (auto place = places.cbegin(); place != places.cend(); ++place) {
        if (place->size() > 1)
            twice += Evidence{place->at(1), u"\"%1\" is the identifier of %2, too"_s.arg(place.key(), place->first())};
    }
    return brokenBy(twice);
}

Judgement judgeNestedIdentifiers(const PackageContents &contents, const RuleSettings &)
{
    const QString identifier = contents.app()->text(u"CFBundleIdentifier"_s);
    if (identifier.isEmpty())
        return cannotBeKnown(u"the app has no identifier"_s);
    QList<Evidence> outside;
    bool found = false;
    for (const PackageBundle &bundle : contents.bundles) {
        if (bundle.kind != BundleKind::Extension && bundle.kind != BundleKind::WatchApp)
            continue;
        found = true;
        const QString own = bundle.text(u"CFBundleIdentifier"_s);
        if (!own.startsWith(identifier + u'.'))
            outside += Evidence{infoPath(bundle), u"CFBundleIdentifier is \"%1\", not \"%2.…\""_s.arg(own, identifier)};
    }
    return found ? brokenBy(outside) : notApplicable(u"there is neither an extension nor a watch app"_s);
}

Judgement judgeArm64Capability(const PackageContents &contents, const RuleSettings &)
{
    if (!isPhoneApp(contents))
        return notApplicable(u"no app for iPhone or iPad"_s);
    const PackageBundle &app = *contents.app();
    const PackageBinary *binary = contents.binaryOf(app);
    if (binary == nullptr)
        return cannotBeKnown(u"the app's binary cannot be read"_s);
    const bool only64 = std::ranges::all_of(binary->facts.slices, &BinarySlice::is64Bit);
    // Since iOS 11 no system runs on a device without arm64.
    const QVersionNumber minimum = minimumSystem(app);
    if (!only64 || minimum.isNull() || minimum >= QVersionNumber(11))
        return notApplicable(u"it has code for older devices, or runs only on systems without them"_s);
    const QVariant needed = app.info ? app.info->value(u"UIRequiredDeviceCapabilities"_s) : QVariant();
    const bool listed = needed.typeId() == QMetaType::QVariantMap ? needed.toMap().value(u"arm64"_s).toBool()
                                                                  : needed.toStringList().contains(u"arm64"_s);
    if (listed)
        return holds();
    return brokenBy({{infoPath(app), u"only 64-bit code, but no arm64 in UIRequiredDeviceCapabilities"_s}});
}

Judgement judgeExportCompliance(const PackageContents &contents, const RuleSettings &)
{
    const PackageBundle &app = *contents.app();
    if (!app.info)
        return cannotBeKnown(unreadable);
    if (app.has(u"ITSAppUsesNonExemptEncryption"_s))
        return holds();
    return brokenBy({{infoPath(app), u"no ITSAppUsesNonExemptEncryption"_s}});
}

Judgement judgeBackgroundProcessing(const PackageContents &contents, const RuleSettings &)
{
    const PackageBundle &app = *contents.app();
    if (!textsIn(app, u"UIBackgroundModes"_s).contains(u"processing"_s))
        return notApplicable(u"it does no processing in the background"_s);
    if (!textsIn(app, u"BGTaskSchedulerPermittedIdentifiers"_s).isEmpty())
        return holds();
    return brokenBy({{infoPath(app), u"UIBackgroundModes holds \"processing\", but no task identifiers are listed"_s}});
}

Judgement judgeArbitraryLoads(const PackageContents &contents, const RuleSettings &)
{
    const PackageBundle &app = *contents.app();
    if (!app.info)
        return cannotBeKnown(unreadable);
    const QVariantMap security = app.info->value(u"NSAppTransportSecurity"_s).toMap();
    if (!security.value(u"NSAllowsArbitraryLoads"_s).toBool())
        return holds();
    return brokenBy({{infoPath(app), u"NSAllowsArbitraryLoads is true"_s}});
}

Judgement judgeFacebook(const PackageContents &contents, const RuleSettings &)
{
    const PackageBundle &app = *contents.app();
    const QString identifier = app.text(u"FacebookAppID"_s);
    if (identifier.isEmpty())
        return notApplicable(u"it names no Facebook app"_s);
    for (const QVariant &type : app.info->value(u"CFBundleURLTypes"_s).toList()) {
        for (const QString &scheme : type.toMap().value(u"CFBundleURLSchemes"_s).toStringList()) {
            // A suffix may follow.
            if (scheme.startsWith(u"fb"_s + identifier))
                return holds();
        }
    }
    return brokenBy({{infoPath(app), u"FacebookAppID is %1, but no URL scheme is fb%1"_s.arg(identifier)}});
}

Judgement judgeLocalizationHoles(const PackageContents &contents, const RuleSettings &)
{
    const QString start = contents.app()->path + u'/';
    // From language to its tables, of the app itself only.
    QMap<QString, QSet<QString>> tables;
    for (const auto &[path, size] : contents.files) {
        const QStringList steps = path.startsWith(start) ? path.mid(start.size()).split(u'/') : QStringList();
        if (steps.size() == 2 && steps[0].endsWith(".lproj"_L1) && steps[0] != "Base.lproj"_L1 &&
            steps[1].endsWith(".strings"_L1))
            tables[steps[0].chopped(6)] += steps[1];
    }
    if (tables.size() < 2)
        return notApplicable(u"there are not two languages to compare"_s);
    QSet<QString> all;
    for (const QSet<QString> &names : tables)
        all += names;
    QList<Evidence> holes;
    for (auto language = tables.cbegin(); language != tables.cend(); ++language) {
        QStringList missing = QSet<QString>(all).subtract(language.value()).values();
        std::ranges::sort(missing);
        if (!missing.isEmpty())
            holes += Evidence{start + language.key() + u".lproj", u"lacks %1"_s.arg(missing.join(u", "_s))};
    }
    return brokenBy(holes);
}

Judgement judgeCellularSize(const PackageContents &contents, const RuleSettings &)
{
    constexpr quint64 limit = 200'000'000;
    if (!contents.isArchive)
        return cannotBeKnown(u"the package is not packed"_s);
    if (contents.packedSize <= limit)
        return holds();
    return brokenBy({{QString(), u"%1 MB packed"_s.arg(contents.packedSize / 1'000'000)}});
}

} // namespace lumora
