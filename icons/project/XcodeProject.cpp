// SPDX-License-Identifier: MIT
#include "XcodeProject.h"

#include "OpenStepList.h"
#include "foundation/WholeFile.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr qint64 longestProject = 64LL * 1024 * 1024;

/// The icon sets that the configurations of a target or of the whole project name. One whose name is put together from
/// other settings is not known.
QStringList iconNamesOf(const QVariantMap &owner, const QVariantMap &objects)
{
    const QVariantMap configurations = objects[owner[u"buildConfigurationList"_s].toString()].toMap();
    const QVariantList ids = configurations[u"buildConfigurations"_s].toList();
    QStringList names;
    for (const QVariant &id : ids) {
        const QVariantMap configuration = objects[id.toString()].toMap();
        const QString name =
            configuration[u"buildSettings"_s].toMap()[u"ASSETCATALOG_COMPILER_APPICON_NAME"_s].toString();
        if (!name.isEmpty() && !name.contains(u'$') && !names.contains(name))
            names << name;
    }
    return names;
}

} // namespace

std::optional<XcodeProject> readXcodeProject(const QString &folder)
{
    const Result<QByteArray> bytes = readWholeFile(folder + u"/project.pbxproj"_s, longestProject);
    const std::optional<QVariant> list = bytes ? readOpenStepList(bytes.value()) : std::nullopt;
    if (!list)
        return std::nullopt;
    const QVariantMap objects = list->toMap()[u"objects"_s].toMap();
    if (objects.isEmpty())
        return std::nullopt;
    XcodeProject project;
    bool forMac = false;
    bool forOthers = false;
    QStringList targets;
    QStringList inherited;
    for (const QVariant &value : objects) {
        const QVariantMap object = value.toMap();
        const QVariantMap settings = object[u"buildSettings"_s].toMap();
        const QString sdk = settings[u"SDKROOT"_s].toString();
        forMac = forMac || sdk == u"macosx";
        forOthers = forOthers || (!sdk.isEmpty() && sdk != u"macosx");
        const QString kind = object[u"isa"_s].toString();
        if (kind == u"PBXProject")
            inherited += iconNamesOf(object, objects);
        if (kind != u"PBXNativeTarget")
            continue;
        targets << object[u"name"_s].toString();
        const QStringList names = iconNamesOf(object, objects);
        if (!names.isEmpty())
            project.iconNames[targets.last()] = names;
    }
    // Targets without icons, such as those of tests, inherit the project's, too: it counts if no target has its own.
    if (project.iconNames.empty() && !inherited.isEmpty()) {
        for (const QString &target : std::as_const(targets))
            project.iconNames[target] = inherited;
    }
    project.forMac = forMac && !forOthers;
    return project;
}

} // namespace lumora
