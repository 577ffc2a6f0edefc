// SPDX-License-Identifier: MIT
#pragma once

#include "DevicePlacement.h"

#include <QString>

#include <vector>

class QWidget;

namespace lumora
{

class DeviceLabel;
class DevicePicture;

/// The views of one list of devices, in the order of the list.
struct DeviceGroup
{
    std::vector<DevicePicture *> images;
    std::vector<DeviceLabel *> labels;

    /// The place of the device at an index in its container.
    using Placement = DevicePlacement (*)(const DeviceRecord &device, int index);

    /// Puts a picture and a label into the container for each device. The group's name goes before each model's where a
    /// screen reader says it.
    static DeviceGroup create(const std::vector<DeviceRecord> &devices, const QString &name, Placement placement,
                              QWidget *container);
    /// Says in the picture's description whether its device matches, for those who do not see it fade.
    static void describe(DevicePicture *picture, bool matches);
};

} // namespace lumora
