// SPDX-License-Identifier: MIT
#include "DevicesCommand.h"

#include "Console.h"
#include "devices/DeviceFilter.h"

#include <CLI/Validators.hpp>

#include <QJsonArray>
#include <QJsonObject>

#include <memory>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

struct DevicesArguments
{
    int ios = 0;
    std::vector<std::string> features;
    bool json = false;
};

QString text(std::string_view view)
{
    return QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size()));
}

std::vector<std::string> featureKeys()
{
    std::vector<std::string> keys;
    for (const DeviceFeature &feature : deviceFeatures)
        keys.emplace_back(feature.key);
    return keys;
}

FilterDictionary filterFrom(const DevicesArguments &arguments)
{
    FilterDictionary filter;
    if (arguments.ios > 0)
        filter.setMaxIos(static_cast<float>(arguments.ios));
    for (const std::string &key : arguments.features) {
        if (const DeviceFeature *feature = deviceFeature(key))
            filter.setFeature(feature->key, true);
    }
    return filter;
}

QJsonObject recordJson(const DeviceRecord &device)
{
    QJsonObject record{
        {u"model"_s, text(device.model)},
        {u"image"_s, text(device.image)},
        // The decimal figure that is meant, not the nearest float's long expansion.
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
    return group + u": "_s + (models.isEmpty() ? u"none"_s : models.join(u", "_s));
}

ExitStatus runDevices(Console &console, const DevicesArguments &arguments)
{
    DeviceLists devices = setupData();
    filterDevices(devices, filterFrom(arguments));
    if (arguments.json) {
        console.print(QJsonDocument(QJsonObject{{u"schema"_s, 1},
                                                {u"iphones"_s, matchingJson(devices.iPhones)},
                                                {u"ipods"_s, matchingJson(devices.iPods)},
                                                {u"ipads"_s, matchingJson(devices.iPads)}}));
        return ExitStatus::Done;
    }
    console.print(groupLine(u"iPhone"_s, devices.iPhones));
    console.print(groupLine(u"iPod"_s, devices.iPods));
    console.print(groupLine(u"iPad"_s, devices.iPads));
    return ExitStatus::Done;
}

} // namespace

CommandBody declareDevicesCommand(CLI::App &subcommand)
{
    const auto arguments = std::make_shared<DevicesArguments>();
    subcommand.description("List the iPhones, iPods and iPads that can run an app");
    subcommand.add_option("--ios", arguments->ios, "Oldest iOS version the app runs on")
        ->check(CLI::IsMember({4, 5, 6, 7}));
    subcommand.add_option("--feature", arguments->features, "Feature the app needs; may be given several times")
        ->check(CLI::IsMember(featureKeys()))
        ->type_name("KEY")
        ->allow_extra_args(false);
    subcommand.add_flag("--json", arguments->json,
                        "Print the matching devices with all they can do as one JSON object");
    return [arguments](Console &console) { return runDevices(console, *arguments); };
}

} // namespace lumora
