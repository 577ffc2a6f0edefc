// SPDX-License-Identifier: MIT
#include "ProjectPlan.h"

#include "AndroidModule.h"
#include "CatalogueFilling.h"
#include "NamedIcons.h"
#include "XcodeProject.h"
#include "foundation/WholeFile.h"
#include "icons/today/AppleSlots.h"
#include "icons/today/Motifs.h"
#include "icons/today/SetPlans.h"
#include "pictures/PictureReader.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int mostFolders = 5000;

/// The folders below whose names have this end, as relative paths. Links and folders of tools are not followed.
QStringList foldersEnding(const QString &root, const QString &ending)
{
    QStringList found;
    QStringList open{QString()};
    for (int looked = 0; !open.isEmpty() && looked < mostFolders; ++looked) {
        const QString folder = open.takeFirst();
        const QStringList names =
            QDir(root + u'/' + folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Name);
        for (const QString &name : names) {
            const QString path = below(folder, name);
            if (name.endsWith(ending))
                found << path;
            else if (!name.startsWith(u'.') && name != u"Pods" && name != u"build" && name != u"node_modules")
                open << path;
        }
    }
    return found;
}

} // namespace

ProjectPlaces::ProjectPlaces(QString root, const RecognizedProject &project, const Motifs &motifs,
                             const ProjectOptions &options, FilePlan &plan)
    : m_root(std::move(root)), m_project(project), m_motifs(motifs), m_options(options), m_plan(plan)
{
}

Outcome ProjectPlaces::add()
{
    switch (m_project.kind) {
    case ProjectKind::Flutter:
        return addFlutter();
    case ProjectKind::Capacitor:
        return addCapacitor();
    case ProjectKind::Cordova:
        return addCordova();
    case ProjectKind::ReactNative:
        return addReactNative();
    case ProjectKind::Expo:
        return addExpo();
    case ProjectKind::Tauri:
        return addTauri();
    case ProjectKind::Electron:
        return addElectron();
    case ProjectKind::Maui:
        return addMaui();
    case ProjectKind::Xcode:
        return addXcode({});
    case ProjectKind::Gradle:
        return addGradle();
    }
    return Done{};
}

bool ProjectPlaces::isMeant() const
{
    const bool hasTargets = m_project.kind == ProjectKind::Xcode || m_project.kind == ProjectKind::ReactNative;
    return (m_options.target.isEmpty() || hasTargets) && (m_options.flavor.isEmpty() || isFlavorKnown());
}

bool ProjectPlaces::isFlavorKnown() const
{
    const QStringList sources = androidSources();
    if (std::any_of(sources.begin(), sources.end(),
                    [this](const QString &folder) { return hasFlavor(whole(folder), m_options.flavor); }))
        return true;
    if (m_project.kind != ProjectKind::Flutter || m_options.flavor.contains(u'/'))
        return false;
    for (const char *folder : {"ios", "macos"}) {
        const QString platform = QString::fromLatin1(folder);
        if (has(platform + u"/Runner/Assets.xcassets/AppIcon-"_s + m_options.flavor + u".appiconset"_s) ||
            has(platform + u"/Runner.xcodeproj/xcshareddata/xcschemes/"_s + m_options.flavor + u".xcscheme"_s))
            return true;
    }
    return false;
}

QStringList ProjectPlaces::androidSources() const
{
    switch (m_project.kind) {
    case ProjectKind::Flutter:
    case ProjectKind::Capacitor:
    case ProjectKind::ReactNative:
        return {u"android/app/src"_s};
    case ProjectKind::Tauri:
        return {u"src-tauri/gen/android/app/src"_s};
    case ProjectKind::Gradle:
        break;
    default:
        return {};
    }
    QStringList modules{u"app"_s};
    if (!has(u"app"_s))
        modules = QDir(whole({})).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Name);
    QStringList sources;
    for (const QString &module : std::as_const(modules)) {
        if (has(module + u"/src/main/AndroidManifest.xml"_s))
            sources << module + u"/src"_s;
    }
    return sources;
}

QString ProjectPlaces::at(const QString &path) const
{
    return below(m_project.folder, path);
}

QString ProjectPlaces::whole(const QString &path) const
{
    const QString relative = at(path);
    return relative.isEmpty() ? m_root : QString(m_root + u'/' + relative);
}

bool ProjectPlaces::has(const QString &path) const
{
    return QFileInfo::exists(whole(path));
}

void ProjectPlaces::addSquare(const QString &file, PictureRecipe recipe)
{
    const Result<QSize> size = has(file) ? storedPixelSize(whole(file)) : QSize();
    if (size && size.value().width() == size.value().height() && !size.value().isEmpty() &&
        size.value().width() <= storeIconSize)
        recipe = filled(recipe.motif, size.value().width(), recipe.form);
    m_plan.addPicture(at(file), recipe);
}

Outcome ProjectPlaces::addOpaque(const QString &file, int edge)
{
    const Result<PictureRecipe> picture = opaqueIcon(m_motifs, edge, m_plan);
    if (!picture)
        return picture.failure();
    m_plan.addPicture(at(file), picture.value());
    return Done{};
}

Outcome ProjectPlaces::addAndroid(StorePicture store)
{
    const QStringList folders = androidSources();
    for (const QString &sources : folders) {
        if (!has(sources))
            continue;
        const Outcome planned = planAndroidModule(m_root, at(sources), m_options.flavor, store, m_motifs, m_plan);
        if (!planned)
            return planned;
    }
    return Done{};
}

QStringList ProjectPlaces::iconSets(const QString &folder) const
{
    QStringList found;
    const QStringList catalogues = foldersEnding(whole(folder), u".xcassets"_s);
    for (const QString &catalogue : catalogues) {
        const QString base = below(folder, catalogue);
        const QStringList sets = foldersEnding(whole(base), u".appiconset"_s);
        for (const QString &path : sets)
            found << below(base, path);
    }
    return found;
}

QStringList ProjectPlaces::iconSetNames(const QString &folder) const
{
    QStringList names;
    const QStringList sets = iconSets(folder);
    for (const QString &path : sets)
        names << QFileInfo(path).completeBaseName();
    names.removeDuplicates();
    return names;
}

Outcome ProjectPlaces::addCatalogues(const QString &folder, const QString &name, bool forMac)
{
    const QString set = name + u".appiconset"_s;
    QStringList found = iconSets(folder);
    found.removeIf([&set](const QString &path) { return QFileInfo(path).fileName() != set; });
    const QStringList catalogues = foldersEnding(whole(folder), u".xcassets"_s);
    if (found.isEmpty() && !catalogues.isEmpty())
        found << below(folder, catalogues.first()) + u'/' + set;
    for (const QString &path : std::as_const(found)) {
        const Outcome planned =
            planCatalogue(m_root, at(path), forMac ? CataloguePlatform::Mac : CataloguePlatform::Ios, m_motifs, m_plan);
        if (!planned)
            return planned;
    }
    return Done{};
}

Result<QString> ProjectPlaces::unnamedIconSet(const QString &folder)
{
    const QString usual = u"AppIcon"_s;
    const QStringList names = iconSetNames(folder);
    if (names.isEmpty() || names.contains(usual))
        return usual;
    if (names.size() > 1)
        return Failure{FailureCode::AmbiguousProject,
                       whole(folder),
                       {"DETAIL_UNNAMED_ICON_SETS", {{"[SETS]", names.join(u", "_s)}}}};
    m_plan.note(Derivation::OnlyIconSet, names.first());
    return names.first();
}

Result<QString> ProjectPlaces::chosenIconSet(const QString &folder, const XcodeProject &project)
{
    const QString &choice = m_options.target;
    QStringList sets;
    QStringList byTarget;
    for (const auto &[target, icons] : project.iconNames) {
        byTarget << target + u" ("_s + icons.join(u", "_s) + u')';
        if (choice.isEmpty() || choice == target)
            sets += icons;
    }
    sets.removeDuplicates();
    if (sets.size() == 1)
        return sets.first();
    if (choice.isEmpty() && sets.isEmpty())
        return unnamedIconSet(folder);
    const QStringList present = iconSetNames(folder);
    const bool isNamed = std::any_of(project.iconNames.begin(), project.iconNames.end(),
                                     [&choice](const auto &target) { return target.second.contains(choice); });
    if (isNamed || present.contains(choice))
        return choice;
    if (project.iconNames.empty() && project.targets.contains(choice))
        return unnamedIconSet(folder);
    if (!sets.isEmpty())
        return Failure{
            FailureCode::AmbiguousProject, whole(folder), {"DETAIL_ICON_SETS", {{"[SETS]", byTarget.join(u", "_s)}}}};
    return Failure{FailureCode::AmbiguousProject,
                   whole(folder),
                   {"DETAIL_NO_ICON_SET",
                    {{"[NAME]", choice}, {"[SETS]", (byTarget.isEmpty() ? present : byTarget).join(u", "_s)}}}};
}

Result<QString> ProjectPlaces::flutterIconSet(const QString &folder)
{
    if (!m_options.flavor.isEmpty())
        return QString(u"AppIcon-"_s + m_options.flavor);
    const Result<QString> set = unnamedIconSet(folder);
    if (set)
        return set;
    return Failure{FailureCode::AmbiguousProject,
                   whole(folder),
                   {"DETAIL_FLAVOR_SETS", {{"[SETS]", iconSetNames(folder).join(u", "_s)}}}};
}

Outcome ProjectPlaces::addFlutter()
{
    for (const auto &[folder, platform] :
         {std::pair{u"ios/Runner"_s, CataloguePlatform::Ios}, std::pair{u"macos/Runner"_s, CataloguePlatform::Mac}}) {
        if (!has(folder))
            continue;
        const Result<QString> name = flutterIconSet(folder);
        if (!name)
            return name.failure();
        const QString set = folder + u"/Assets.xcassets/"_s + name.value() + u".appiconset"_s;
        const Outcome planned = planCatalogue(m_root, at(set), platform, m_motifs, m_plan);
        if (!planned)
            return planned;
    }
    if (const Outcome android = addAndroid(StorePicture::None); !android)
        return android;
    // The site and the Windows program have no flavors.
    if (!m_options.flavor.isEmpty())
        return Done{};
    if (has(u"web"_s)) {
        const Result<QList<NamedIcon>> icons = addAllNamed();
        if (!icons)
            return icons.failure();
    }
    if (has(u"windows/runner"_s))
        m_plan.files.append(
            windowsIcon(at(u"windows/runner/resources/app_icon.ico"_s), {16, 20, 24, 32, 40, 48, 64, 96, 256}));
    return Done{};
}

Outcome ProjectPlaces::addCapacitor()
{
    if (has(u"ios/App"_s)) {
        const Outcome planned = planCatalogue(m_root, at(u"ios/App/App/Assets.xcassets/AppIcon.appiconset"_s),
                                              CataloguePlatform::Ios, m_motifs, m_plan);
        if (!planned)
            return planned;
    }
    return addAndroid(StorePicture::None);
}

Outcome ProjectPlaces::addReactNative()
{
    if (has(u"ios"_s)) {
        const Outcome planned = addXcode(u"ios"_s);
        if (!planned)
            return planned;
    }
    return addAndroid(StorePicture::None);
}

Outcome ProjectPlaces::addTauri()
{
    const QString icons = u"src-tauri/icons/"_s;
    const Result<QList<NamedIcon>> named = addAllNamed();
    if (!named)
        return named.failure();
    m_plan.files.append(windowsIcon(at(icons + u"icon.ico"_s), {16, 24, 32, 48, 64, 256}));
    m_plan.files.append(macIconFile(at(icons + u"icon.icns"_s)));
    if (has(u"src-tauri/gen/apple"_s)) {
        const Outcome planned = addCatalogues(u"src-tauri/gen/apple"_s, u"AppIcon"_s, false);
        if (!planned)
            return planned;
    }
    return addAndroid(StorePicture::None);
}

Outcome ProjectPlaces::addXcode(const QString &folder)
{
    const QStringList projects =
        QDir(whole(folder))
            .entryList({u"*.xcodeproj"_s}, QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Name);
    XcodeProject all;
    for (const QString &name : projects) {
        const QString path = below(folder, name);
        const std::optional<XcodeProject> project = readXcodeProject(whole(path));
        if (!project)
            return Failure{FailureCode::NotReadable, whole(path), u"project.pbxproj"_s};
        all.forMac = all.forMac || project->forMac;
        all.targets += project->targets;
        for (const auto &[target, icons] : project->iconNames)
            all.iconNames[target] += icons;
    }
    const Result<QString> set = chosenIconSet(folder, all);
    return set ? addCatalogues(folder, set.value(), all.forMac) : Outcome(set.failure());
}

Outcome ProjectPlaces::addGradle()
{
    return addAndroid(StorePicture::Kept);
}

} // namespace lumora
