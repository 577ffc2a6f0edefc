// SPDX-License-Identifier: MIT
#pragma once

#include "DeviceModel.h"

#include <QSize>

#include <span>

namespace lumora
{

/// Screens that show an app at about one size, as the App Store sorts its screenshots.
struct ScreenClass
{
    std::string_view key;               ///< "6.9"; the diagonal in inches that the store calls the class by
    DeviceFamily family;                ///< an iPod's screen is of the iPhones' classes
    std::span<const QSize> points;      ///< the screens of the class, in portrait
    std::span<const QSize> screenshots; ///< the sizes in pixels that the store takes for it, in portrait
};

std::span<const ScreenClass> screenClasses();

/// The class of the model's screen; null where the screen is not known.
const ScreenClass *screenClassOf(const DeviceModel &model);

} // namespace lumora
