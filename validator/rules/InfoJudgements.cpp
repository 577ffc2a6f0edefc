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

QString unreadable()
{
    return worded("FOUND_INFO_UNREADABLE");
}

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

/// Whether the app says that it needs a device with 64-bit code.
bool listsArm64(const PackageBundle &app)
{
    const QVariant needed = app.info ? app.info->value(u"UIRequiredDeviceCapabilities"_s) : QVariant();
    return needed.typeId() == QMetaType::QVariantMap ? needed.toMap().value(u"arm64"_s).toBool()
                                                     : needed.toStringList().contains(u"arm64"_s);
}

} // namespace

Judgement judgePadOrientations(const PackageContents &contents, const RuleSettings &)
{
    if (!isPhoneApp(contents))
        return notApplicable(worded("FOUND_NO_PAD"));
    const PackageBundle &app = *contents.app();
    if (!app.info)
        return cannotBeKnown(unreadable());
    if (!sharesTheScreen(app))
        return notApplicable(worded("FOUND_WHOLE_SCREEN"));
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
    return brokenBy({{infoPath(app), worded("FOUND_LIST_LACKS", {key, missing.join(u", "_s)})}});
}

Judgement judgeLaunchScreen(const PackageContents &contents, const RuleSettings &)
{
    if (!isPhoneApp(contents))
        return notApplicable(worded("FOUND_NO_PAD"));
    const PackageBundle &app = *contents.app();
    if (!app.info)
        return cannotBeKnown(unreadable());
    if (!sharesTheScreen(app))
        return notApplicable(worded("FOUND_WHOLE_SCREEN"));
    for (const QString &key : {u"UILaunchStoryboardName"_s, u"UILaunchStoryboardName~ipad"_s, u"UILaunchScreen"_s,
                               u"UILaunchScreen~ipad"_s, u"UILaunchScreens"_s}) {
        if (app.has(key))
            return holds();
    }
    return brokenBy({{infoPath(app), worded("FOUND_NO_LAUNCH_SCREEN")}});
}

Judgement judgePackageType(const PackageContents &contents, const RuleSettings &)
{
    const PackageBundle &app = *contents.app();
    if (contents.isUnread(infoPath(app)))
        return cannotBeKnown(tooLarge());
    if (!app.info)
        return brokenBy({{infoPath(app), worded("FOUND_NONE_READABLE")}});
    const QString type = app.text(u"CFBundlePackageType"_s);
    return type == "APPL"_L1 ? holds() : brokenBy({{infoPath(app), worded("FOUND_PACKAGE_TYPE", {type})}});
}

Judgement judgeMinimumSystem(const PackageContents &contents, const RuleSettings &settings)
{
    if (!isPhoneApp(contents))
        return notApplicable(worded("FOUND_NO_PHONE_OR_PAD"));
    if (settings.on < QDate(2026, 6, 1))
        return notApplicable(worded("FOUND_NOT_ANNOUNCED"));
    const QVersionNumber minimum = minimumSystem(*contents.app());
    if (minimum.isNull())
        return cannotBeKnown(worded("FOUND_INFO_NO_MINIMUM"));
    if (minimum >= QVersionNumber(15))
        return holds();
    return brokenBy({{infoPath(*contents.app()), worded("FOUND_MINIMUM_IS", {minimum.toString()})}});
}

Judgement judgeNestedVersions(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    for (const PackageBundle *bundle : codeBundles(contents)) {
        if (!bundle->info)
            continue;
        const QString version = bundle->text(u"CFBundleShortVersionString"_s);
        if (version.isEmpty())
            bad += Evidence{infoPath(*bundle), worded("FOUND_NO_VERSION")};
        else if (!isVersion(version))
            bad += Evidence{infoPath(*bundle), worded("FOUND_VERSION_IS", {version})};
        const QString build = bundle->text(u"CFBundleVersion"_s);
        if (build.isEmpty())
            bad += Evidence{infoPath(*bundle), worded("FOUND_NO_BUILD")};
        else if (bundle->kind != BundleKind::Framework && !isVersion(build))
            bad += Evidence{infoPath(*bundle), worded("FOUND_BUILD_IS", {build})};
    }
    return brokenBy(bad);
}

Judgement judgeExtensionVersions(const PackageContents &contents, const RuleSettings &)
{
    const PackageBundle &app = *contents.app();
    if (!app.info)
        return cannotBeKnown(unreadable());
    QList<Evidence> different;
    bool found = false;
    for (const PackageBundle &bundle : contents.bundles) {
        if (bundle.kind != BundleKind::Extension || !bundle.info)
            continue;
        found = true;
        for (const QString &key : {u"CFBundleShortVersionString"_s, u"CFBundleVersion"_s}) {
            if (bundle.text(key) != app.text(key))
                different +=
                    Evidence{infoPath(bundle), worded("FOUND_OTHER_VERSION", {key, bundle.text(key), app.text(key)})};
        }
    }
    return found ? brokenBy(different) : notApplicable(worded("FOUND_NO_EXTENSION"));
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
            twice += Evidence{place->at(1), worded("FOUND_IDENTIFIER_TWICE", {place.key(), place->first()})};
    }
    return brokenBy(twice);
}

Judgement judgeNestedIdentifiers(const PackageContents &contents, const RuleSettings &)
{
    const QString identifier = contents.app()->text(u"CFBundleIdentifier"_s);
    if (identifier.isEmpty())
        return cannotBeKnown(worded("FOUND_NO_IDENTIFIER"));
    QList<Evidence> outside;
    bool found = false;
    for (const PackageBundle &bundle : contents.bundles) {
        if (bundle.kind != BundleKind::Extension && bundle.kind != BundleKind::WatchApp)
            continue;
        found = true;
        const QString own = bundle.text(u"CFBundleIdentifier"_s);
        if (!own.startsWith(identifier + u'.'))
            outside += Evidence{infoPath(bundle), worded("FOUND_IDENTIFIER_OUTSIDE", {own, identifier})};
    }
    return found ? brokenBy(outside) : notApplicable(worded("FOUND_NO_NESTED_APP"));
}

Judgement judgeArm64Capability(const PackageContents &contents, const RuleSettings &)
{
    if (!isPhoneApp(contents))
        return notApplicable(worded("FOUND_NO_PHONE_OR_PAD"));
    const PackageBundle &app = *contents.app();
    const PackageBinary *binary = contents.binaryOf(app);
    if (binary == nullptr)
        return cannotBeKnown(worded("FOUND_NO_BINARY"));
    const bool only64 = std::ranges::all_of(binary->facts.slices, &BinarySlice::is64Bit);
    // Since iOS 11 no system runs on a device without arm64.
    const QVersionNumber minimum = minimumSystem(app);
    if (!only64 || minimum.isNull() || minimum >= QVersionNumber(11))
        return notApplicable(worded("FOUND_OLDER_DEVICES"));
    if (listsArm64(app))
        return holds();
    return brokenBy({{infoPath(app), worded("FOUND_NO_ARM64")}});
}

Judgement judgeArm64Minimum(const PackageContents &contents, const RuleSettings &)
{
    if (!isPhoneApp(contents))
        return notApplicable(worded("FOUND_NO_PHONE_OR_PAD"));
    const PackageBundle &app = *contents.app();
    if (!listsArm64(app))
        return notApplicable(worded("FOUND_ARM64_NOT_LISTED"));
    const QVersionNumber minimum = minimumSystem(app);
    if (minimum.isNull())
        return cannotBeKnown(worded("FOUND_INFO_NO_MINIMUM"));
    // The first device with 64-bit code came with iOS 7.
    if (minimum >= QVersionNumber(7))
        return holds();
    return brokenBy({{infoPath(app), worded("FOUND_ARM64_MINIMUM", {minimum.toString()})}});
}

Judgement judgeExportCompliance(const PackageContents &contents, const RuleSettings &)
{
    const PackageBundle &app = *contents.app();
    if (!app.info)
        return cannotBeKnown(unreadable());
    if (app.has(u"ITSAppUsesNonExemptEncryption"_s))
        return holds();
    return brokenBy({{infoPath(app), worded("FOUND_NO_EXPORT_KEY")}});
}

Judgement judgeBackgroundProcessing(const PackageContents &contents, const RuleSettings &)
{
    const PackageBundle &app = *contents.app();
    if (!textsIn(app, u"UIBackgroundModes"_s).contains(u"processing"_s))
        return notApplicable(worded("FOUND_NO_PROCESSING"));
    if (!textsIn(app, u"BGTaskSchedulerPermittedIdentifiers"_s).isEmpty())
        return holds();
    return brokenBy({{infoPath(app), worded("FOUND_NO_TASKS")}});
}

Judgement judgeArbitraryLoads(const PackageContents &contents, const RuleSettings &)
{
    const PackageBundle &app = *contents.app();
    if (!app.info)
        return cannotBeKnown(unreadable());
    const QVariantMap security = app.info->value(u"NSAppTransportSecurity"_s).toMap();
    if (!security.value(u"NSAllowsArbitraryLoads"_s).toBool())
        return holds();
    return brokenBy({{infoPath(app), worded("FOUND_ARBITRARY_LOADS")}});
}

Judgement judgeFacebook(const PackageContents &contents, const RuleSettings &)
{
    const PackageBundle &app = *contents.app();
    const QString identifier = app.text(u"FacebookAppID"_s);
    if (identifier.isEmpty())
        return notApplicable(worded("FOUND_NO_FACEBOOK"));
    for (const QVariant &type : app.info->value(u"CFBundleURLTypes"_s).toList()) {
        for (const QString &scheme : type.toMap().value(u"CFBundleURLSchemes"_s).toStringList()) {
            // A suffix may follow.
            if (scheme.startsWith(u"fb"_s + identifier))
                return holds();
        }
    }
    return brokenBy({{infoPath(app), worded("FOUND_NO_FACEBOOK_SCHEME", {identifier})}});
}

Judgement judgeLocalizationHoles(const PackageContents &contents, const RuleSettings &)
{
    const QString start = contents.app()->layout.resources + u'/';
    // From language to its tables, of the app itself only.
    QMap<QString, QSet<QString>> tables;
    for (const auto &[path, size] : contents.files) {
        const QStringList steps = path.startsWith(start) ? path.mid(start.size()).split(u'/') : QStringList();
        if (steps.size() == 2 && steps[0].endsWith(".lproj"_L1) && steps[0] != "Base.lproj"_L1 &&
            steps[1].endsWith(".strings"_L1))
            tables[steps[0].chopped(6)] += steps[1];
    }
    if (tables.size() < 2)
        return notApplicable(worded("FOUND_ONE_LANGUAGE"));
    QSet<QString> all;
    for (const QSet<QString> &names : tables)
        all += names;
    QList<Evidence> holes;
    for (auto language = tables.cbegin(); language != tables.cend(); ++language) {
        QStringList missing = QSet<QString>(all).subtract(language.value()).values();
        std::ranges::sort(missing);
        if (!missing.isEmpty())
            holes += Evidence{start + language.key() + u".lproj", worded("FOUND_LACKS", {missing.join(u", "_s)})};
    }
    return brokenBy(holes);
}

Judgement judgeCellularSize(const PackageContents &contents, const RuleSettings &)
{
    constexpr quint64 limit = 200'000'000;
    if (!contents.isArchive)
        return cannotBeKnown(worded("FOUND_NOT_PACKED"));
    if (contents.packedSize <= limit)
        return holds();
    return brokenBy({{QString(), worded("FOUND_PACKED_SIZE", {QString::number(contents.packedSize / 1'000'000)})}});
}

Judgement judgeUnread(const PackageContents &contents, const RuleSettings &)
{
    QList<Evidence> bad;
    for (const QString &path : contents.unread)
        bad += Evidence{path, tooLarge()};
    return brokenBy(bad);
}

} // namespace lumora
