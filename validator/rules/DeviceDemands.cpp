// SPDX-License-Identifier: MIT
#include "DeviceDemands.h"

#include "Judging.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The keys of UIRequiredDeviceCapabilities, a list or a table of what must be there and what must not.
QStringList requiredCapabilities(const PackageBundle &app)
{
    const QVariant value = app.info ? app.info->value(u"UIRequiredDeviceCapabilities"_s) : QVariant();
    if (value.typeId() != QMetaType::QVariantMap)
        return value.toStringList();
    QStringList keys;
    const QVariantMap table = value.toMap();
    for (auto each = table.begin(); each != table.end(); ++each) {
        if (each.value().toBool())
            keys += each.key();
    }
    return keys;
}

/// Whether all code of the app's executable is for 64-bit processors.
bool isFor64BitOnly(const PackageContents &contents, const PackageBundle &app)
{
    const PackageBinary *binary = contents.binaryOf(app);
    return binary != nullptr && !binary->facts.slices.isEmpty() &&
           std::ranges::all_of(binary->facts.slices,
                               [](const BinarySlice &slice) { return slice.architecture.startsWith(u"arm64"); });
}

/// Of an app for several devices, the first one.
QString otherDevice(const PackageContents &contents, const PackageBundle &app)
{
    switch (platformOf(contents)) {
    case BinaryPlatform::MacOS:
    case BinaryPlatform::MacCatalyst:
        return u"Mac"_s;
    case BinaryPlatform::TvOS:
    case BinaryPlatform::TvOSSimulator:
        return u"Apple TV"_s;
    case BinaryPlatform::WatchOS:
    case BinaryPlatform::WatchOSSimulator:
        return u"Apple Watch"_s;
    case BinaryPlatform::VisionOS:
    case BinaryPlatform::VisionOSSimulator:
        return u"Apple Vision"_s;
    default:
        break;
    }
    const QList<int> families = deviceFamilies(app);
    if (families.contains(1) || families.contains(2))
        return {};
    const QMap<int, QString> names{{3, u"Apple TV"_s}, {4, u"Apple Watch"_s}, {6, u"Mac"_s}, {7, u"Apple Vision"_s}};
    return names.value(families.first());
}

} // namespace

DeviceDemands deviceDemandsOf(const PackageContents &contents)
{
    const PackageBundle *app = contents.app();
    if (app == nullptr)
        return {};
    DeviceDemands demands{app->text(u"MinimumOSVersion"_s), !deviceFamilies(*app).contains(1),
                          requiredCapabilities(*app)};
    if (isFor64BitOnly(contents, *app))
        demands.capabilities += u"arm64"_s;
    demands.capabilities.removeDuplicates();
    demands.otherDevice = otherDevice(contents, *app);
    return demands;
}

} // namespace lumora
