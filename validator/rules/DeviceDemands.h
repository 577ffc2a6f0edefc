// SPDX-License-Identifier: MIT
#pragma once

#include "PackageContents.h"

#include <QString>
#include <QStringList>

namespace lumora
{

/// What an app demands of the device that it runs on.
struct DeviceDemands
{
    QString minimumSystem; ///< as the Info.plist has it; empty without a demand
    bool padOnly = false;
    QStringList capabilities =
        {};                   ///< keys of UIRequiredDeviceCapabilities, and "arm64" for an app with 64-bit code only
    QString otherDevice = {}; ///< the device that the app is for, if that is no iPhone or iPad; else empty

    bool operator==(const DeviceDemands &) const = default;
};

DeviceDemands deviceDemandsOf(const PackageContents &contents);

} // namespace lumora
