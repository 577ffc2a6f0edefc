// SPDX-License-Identifier: MIT
#pragma once

#include "OsVersion.h"

#include <string_view>

namespace lumora
{

enum class DeviceFamily { IPhone, IPad, IPod };

enum class Biometry { Unknown, None, TouchId, FaceId };

/// Whether a model has something, if that is known.
enum class Having { Unknown, No, Yes };

/// One identifier's hardware, from the device list. The texts live as long as the list. Sizes are in portrait; an
/// unknown screen has sizes of 0.
struct DeviceModel
{
    std::string_view identifier; ///< "iPhone15,2"
    std::string_view name;       ///< the usual name: "iPhone 14 Pro"
    std::string_view released;   ///< first day of sale, "2022-09-16"; only the month if the day is not known
    std::string_view chip;       ///< "A16 Bionic"
    std::string_view arch;       ///< "arm64e"
    OsVersion minOs;             ///< the version it was sold with
    OsVersion maxOs;             ///< the newest version for it; only the major one if it gets all of its updates
    int widthPixels = 0;         ///< of the panel
    int heightPixels = 0;
    int scale = 0;
    int renderWidth = 0; ///< the pixels that apps draw; on a few models not those of the panel
    int renderHeight = 0;
    int widthPoints = 0;
    int heightPoints = 0;
    double diagonalInches = 0.0;
    int pixelsPerInch = 0;
    Biometry biometry = Biometry::Unknown;
    Having dynamicIsland = Having::Unknown;
    Having lidar = Having::Unknown;
    Having usbC = Having::Unknown;
    Having cellular5G = Having::Unknown;
    bool arm64 = false;
    bool metal = false;
    bool arkit = false;
    bool minimumPerformanceA12 = false;
    bool gamingTier = false;

    bool operator==(const DeviceModel &) const = default;
};

constexpr bool hasKnownScreen(const DeviceModel &model)
{
    return model.widthPixels > 0;
}

/// Known by the identifier's first letters; a list contains no other families.
constexpr DeviceFamily familyOf(const DeviceModel &model)
{
    if (model.identifier.starts_with("iPhone"))
        return DeviceFamily::IPhone;
    return model.identifier.starts_with("iPad") ? DeviceFamily::IPad : DeviceFamily::IPod;
}

/// The family's name, "iPhone", and its word on the command line, "iphone".
constexpr std::string_view familyName(DeviceFamily family)
{
    return family == DeviceFamily::IPhone ? "iPhone" : family == DeviceFamily::IPad ? "iPad" : "iPod touch";
}
constexpr std::string_view familyKey(DeviceFamily family)
{
    return family == DeviceFamily::IPhone ? "iphone" : family == DeviceFamily::IPad ? "ipad" : "ipod";
}

constexpr std::string_view biometryKey(Biometry biometry)
{
    switch (biometry) {
    case Biometry::None:
        return "none";
    case Biometry::TouchId:
        return "touchid";
    case Biometry::FaceId:
        return "faceid";
    case Biometry::Unknown:
        break;
    }
    return "unknown";
}

} // namespace lumora
