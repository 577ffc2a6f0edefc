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
    for (const QVariant &value : objects) {
        const QVariantMap object = value.toMap();
        const QVariantMap settings = object[u"buildSettings"_s].toMap();
        const QString sdk = settings[u"SDKROOT"_s].toString();
        forMac = forMac || sdk == u"macosx";
        forOthers = forOthers || (!sdk.isEmpty() && sdk != u"macosx");
        if (object[u"isa"_s].toString() != u"PBXNativeTarget")
            continue;
        const QVariantMap configurations = objects[object[u"buildConfigurationList"_s].toString()].toMap();
        const QVariantList ids = configurations[u"buildConfigurations"_s].toList();
        QStringList names;
        for (const QVariant &id : ids) {
            const QVariantMap configuration = objects[id.toString()].toMap();
            const QString name =
                configuration[u"buildSettings"_s].toMap()[u"ASSETCATALOG_COMPILER_APPICON_NAME"_s].toString();
            if (!name.isEmpty() && !names.contains(name))
                names << name;
        }
        if (!names.isEmpty())
            project.iconNames[object[u"name"_s].toString()] = names;
    }
    project.forMac = forMac && !forOthers;
    return project;
}

} // namespace lumora
