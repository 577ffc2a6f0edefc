// SPDX-License-Identifier: MIT
#pragma once

#include "DeviceFilter.h"
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

    /// The place, in the container, of the device at an index.
    using Placement = DevicePlacement (*)(const DeviceRecord &device, int index);

    /// Puts a picture and a label into the container for each device. The accessible name is the group's name followed
    /// by the model's.
    static DeviceGroup create(const std::vector<DeviceRecord> &devices, const QString &name, Placement placement,
                              QWidget *container);
    /// Sets the picture's accessible description to whether its device matches, for users who do not see it fade.
    static void describe(DevicePicture *picture, bool matches);
    /// Sets the tool tips of picture and label, and the help for screen readers, to what the device lacks.
    static void explain(DevicePicture *picture, DeviceLabel *label, const DeviceRecord &device,
                        const Shortfall &shortfall);
};

} // namespace lumora
