// SPDX-License-Identifier: MIT
#include "DevicesCommand.h"

#include "DeviceModels.h"
#include "cli/arguments/ArgumentParser.h"
#include "cli/arguments/Declaration.h"
#include "cli/arguments/Suggestion.h"
#include "cli/console/CommandText.h"
#include "devices/DeviceFilter.h"
#include "devices/today/ModelFilter.h"

#include <QJsonArray>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct DevicesArguments
{
    DeviceModelsRequest models;
    QStringList features;
};

/// The versions for the classic list.
const QStringList &iosVersions()
{
    static const QStringList versions{u"4"_s, u"5"_s, u"6"_s, u"7"_s};
    return versions;
}

QString text(std::string_view view)
{
    return QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size()));
}

QStringList featureKeys()
{
    QStringList keys;
    for (const DeviceFeature &feature : deviceFeatures)
        keys << text(feature.key);
    return keys;
}

FilterDictionary filterFrom(const DevicesArguments &arguments)
{
    FilterDictionary filter;
    if (!arguments.models.ios.isEmpty())
        filter.setMaxIos(arguments.models.ios.toFloat());
    for (const QString &key : arguments.features) {
        if (const DeviceFeature *feature = deviceFeature(key.toStdString()))
            filter.setFeature(feature->key, true);
    }
    return filter;
}

QJsonObject recordJson(const DeviceRecord &device)
{
    QJsonObject record{
        {u"model"_s, text(device.model)},
        {u"image"_s, text(device.image)},
        // The short decimal number, not the nearest float's long expansion.
        {u"max_ios"_s, QString::number(static_cast<double>(device.maxIos), 'g', 6).toDouble()},
        {u"active"_s, device.active},
    };
    for (const DeviceFeature &feature : deviceFeatures)
        record.insert(text(feature.key), device.*(feature.value));
    return record;
}

QJsonArray matchingJson(const std::vector<DeviceRecord> &devices)
{
    QJsonArray records;
    for (const DeviceRecord &device : devices) {
        if (device.active)
            records.append(recordJson(device));
    }
    return records;
}

/// "iPad: 1st Gen (mini), 3rd Gen". The mini shares its label with another iPad, so it is named.
QString groupLine(const QString &group, const std::vector<DeviceRecord> &devices)
{
    QStringList models;
    for (const DeviceRecord &device : devices) {
        if (device.active)
            models += text(device.model) + (isMini(device) ? u" (mini)"_s : QString());
    }
    return group + u": "_s + (models.isEmpty() ? commandText("CLI_NONE") : models.join(u", "_s));
}

/// The complaint about a version that only today's list has, in the parser's words for a fixed list.
Complaint wrongVersion(const QString &version)
{
    constexpr double newerThanAll = 8.0;
    ModelFilter ignored;
    const bool isOfToday =
        (version.contains(u"..") || version.toDouble() >= newerThanAll) && takeIosRange(version, ignored);
    const QString advice =
        isOfToday ? commandText("CLI_DEVICES_IOS_TODAY") : didYouMean(nearestWords(version, iosVersions()));
    return misuse(
        "bad-value",
        commandText("CLI_WRONG_CHOICE",
                    {{"[OPTION]", u"--ios"_s}, {"[WORDS]", alternatives(iosVersions())}, {"[VALUE]", quoted(version)}}),
        advice);
}

ExitStatus runDevices(Console &console, const DevicesArguments &arguments)
{
    if (arguments.models.isMeant())
        return printDeviceModels(console, arguments.models);
    if (const QString &ios = arguments.models.ios; !ios.isEmpty() && !iosVersions().contains(ios)) {
        console.complain(wrongVersion(ios));
        return console.finish(ExitStatus::Usage);
    }
    DeviceLists devices = setupData();
    filterDevices(devices, filterFrom(arguments));
    console.print(groupLine(u"iPhone"_s, devices.iPhones));
    console.print(groupLine(u"iPod"_s, devices.iPods));
    console.print(groupLine(u"iPad"_s, devices.iPads));
    return console.finish(ExitStatus::Done, {{u"iphones"_s, matchingJson(devices.iPhones)},
                                             {u"ipods"_s, matchingJson(devices.iPods)},
                                             {u"ipads"_s, matchingJson(devices.iPads)}});
}

} // namespace

CommandBody declareDevicesCommand(Declaration &declaration)
{
    const auto arguments = std::make_shared<DevicesArguments>();
    declaration.option("--ios", &arguments->models.ios, "VERSION", "CLI_DEVICES_IOS");
    declaration.option("--feature", &arguments->features, "KEY", "CLI_DEVICES_FEATURE").words(featureKeys()).list();
    arguments->models.declareOn(declaration);
    for (const char *option : {"--today", "--family", "--chip", "--capability", "--screen", "--biometry", "--with",
                               "--search", "--model", "--data", "--csv"})
        declaration.atMostOne({u"--feature"_s, QString::fromLatin1(option)});
    declaration.example("lumora devices --ios 7 --feature bluetooth_le");
    declaration.example("lumora devices --today --ios 15.. --family ipad --capability arkit,metal");
    return [arguments](Console &console) { return runDevices(console, *arguments); };
}

} // namespace lumora
