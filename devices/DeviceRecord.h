// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

namespace lumora
{

/// One device model and its capabilities. The members are in the order of the keys of `deviceFeatures` and of the
/// catalogue's columns.
struct DeviceRecord
{
    /// The label under the picture, such as "3GS". Not unique: two iPads are both "1st Gen".
    std::string_view model;
    /// The name of the device's picture.
    std::string_view image;
    /// The newest iOS version that it runs, compared in single precision.
    float maxIos = 0.0F;
    bool multitask = false;
    bool retina = false;
    bool siri = false;
    bool gps = false;
    bool compass = false;
    bool gyroscope = false;
    bool backCamera = false;
    bool frontCamera = false;
    bool cameraFlash = false;
    bool videoRecording = false;
    bool bluetoothLe = false;
    bool opengl2 = false;
    bool opengl3 = false;
    /// True while the device meets the filter that was last applied.
    bool active = true;

    bool operator==(const DeviceRecord &) const = default;
};

/// The iPad mini, which shares its label with another iPad and is recognized by its picture.
constexpr bool isMini(const DeviceRecord &device)
{
    return device.image == "device_ipad_mini";
}

/// One capability that devices can be filtered by.
struct DeviceFeature
{
    std::string_view key;
    /// The text of the feature's check box, the same in every language.
    std::string_view label;
    bool DeviceRecord::*value;
};

/// All capabilities in the order in which the window offers them.
inline constexpr std::array<DeviceFeature, 13> deviceFeatures{{
    {"retina", "Retina Display", &DeviceRecord::retina},
    {"multitask", "Multitask", &DeviceRecord::multitask},
    {"siri", "Siri", &DeviceRecord::siri},
    {"video_rec", "Video Recording", &DeviceRecord::videoRecording},
    {"compass", "Compass", &DeviceRecord::compass},
    {"gyroscope", "Gyroscope", &DeviceRecord::gyroscope},
    {"gps", "GPS", &DeviceRecord::gps},
    {"back_cam", "Back Camera", &DeviceRecord::backCamera},
    {"front_cam", "Front Camera", &DeviceRecord::frontCamera},
    {"flash_cam", "Camera Flash", &DeviceRecord::cameraFlash},
    {"bluetooth_le", "Bluetooth LE", &DeviceRecord::bluetoothLe},
    {"opengl_2", "OpenGL 2.0", &DeviceRecord::opengl2},
    {"opengl_3", "OpenGL 3.0", &DeviceRecord::opengl3},
}};

/// One choice of the oldest iOS version that is to be supported.
struct IosChoice
{
    float version;
    std::string_view label;
};

inline constexpr std::array<IosChoice, 4> iosChoices{{
    {4.0F, "iOS 4+"},
    {5.0F, "iOS 5+"},
    {6.0F, "iOS 6+"},
    {7.0F, "iOS 7+"},
}};

/// The feature with the key; null where there is none.
constexpr const DeviceFeature *deviceFeature(std::string_view key)
{
    for (const DeviceFeature &feature : deviceFeatures) {
        if (feature.key == key)
            return &feature;
    }
    return nullptr;
}

/// Whether the device has the feature; false for an unknown key.
constexpr bool hasFeature(const DeviceRecord &device, std::string_view key)
{
    const DeviceFeature *feature = deviceFeature(key);
    return feature != nullptr && device.*(feature->value);
}

} // namespace lumora
