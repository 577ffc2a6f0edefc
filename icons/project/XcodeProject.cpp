// SPDX-License-Identifier: MIT
#include "XcodeProject.h"

#include "OpenStepList.h"
#include "XcodeSettings.h"
#include "foundation/WholeFile.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr qint64 longestProject = 64LL * 1024 * 1024;
const QString iconSetting = u"ASSETCATALOG_COMPILER_APPICON_NAME"_s;
const QString sdkSetting = u"SDKROOT"_s;
const QString macSdk = u"macosx"_s;

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
    XcodeSettings settings(QFileInfo(folder).path(), objects);
    XcodeProject project;
    bool forMac = false;
    bool forOthers = false;
    std::map<QString, QStringList> inherited;
    for (const QVariant &value : objects) {
        const QVariantMap object = value.toMap();
        QStringList sdks{object[u"buildSettings"_s].toMap()[sdkSetting].toString()};
        const bool isTarget = object[u"isa"_s].toString() == u"PBXNativeTarget";
        if (isTarget)
            sdks += settings.ofTarget(object, sdkSetting) + settings.inherited(object, sdkSetting);
        sdks.removeAll({});
        forMac = forMac || sdks.contains(macSdk);
        forOthers = forOthers || sdks.count(macSdk) < sdks.size();
        if (!isTarget)
            continue;
        const QString target = object[u"name"_s].toString();
        project.targets << target;
        if (const QStringList names = settings.ofTarget(object, iconSetting); !names.isEmpty())
            project.iconNames[target] = names;
        if (const QStringList names = settings.inherited(object, iconSetting); !names.isEmpty())
            inherited[target] = names;
    }
    // Targets without icons, such as those of tests, inherit the project's, too: it counts if no target has its own.
    if (project.iconNames.empty())
        project.iconNames = inherited;
    project.forMac = forMac && !forOthers;
    return project;
}

} // namespace lumora
