// SPDX-License-Identifier: MIT
#pragma once

#include "DeviceRecord.h"

#include <QRect>

namespace lumora
{

/// The place of one device in its group's container, in points with the origin at the container's lower left corner
/// and y upwards: a rectangle's y() is its lower edge.
struct DevicePlacement
{
    QRect picture;
    QRect label;

    bool operator==(const DevicePlacement &) const = default;
};

/// The place of an iPhone or iPod: one row from left to right.
DevicePlacement placeInRow(int index);

/// The place of an iPad: the mini is one row above the others, which begin below it.
DevicePlacement placeOfiPad(const DeviceRecord &device, int index);

} // namespace lumora
