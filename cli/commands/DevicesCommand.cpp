// SPDX-License-Identifier: MIT
#include "DevicesCommand.h"

#include "cli/arguments/Declaration.h"
#include "cli/console/CommandText.h"
#include "devices/DeviceFilter.h"

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
    QString ios;
    QStringList features;
};

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
    if (!arguments.ios.isEmpty())
        filter.setMaxIos(arguments.ios.toFloat());
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

ExitStatus runDevices(Console &console, const DevicesArguments &arguments)
{
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
    declaration.option("--ios", &arguments->ios, "VERSION", "CLI_DEVICES_IOS").words({u"4"_s, u"5"_s, u"6"_s, u"7"_s});
    declaration.option("--feature", &arguments->features, "KEY", "CLI_DEVICES_FEATURE").words(featureKeys()).list();
    declaration.example("lumora devices --ios 7 --feature bluetooth_le");
    declaration.example("lumora devices --feature gps,compass --json");
    return [arguments](Console &console) { return runDevices(console, *arguments); };
}

} // namespace lumora
