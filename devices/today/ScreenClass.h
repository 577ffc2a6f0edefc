// SPDX-License-Identifier: MIT
#pragma once

#include "DeviceModel.h"

#include <QSize>

#include <span>

namespace lumora
{

/// A class of screens of about the same size, by which the App Store sorts screenshots.
struct ScreenClass
{
    std::string_view key;               ///< "6.9"; the diagonal in inches, the store's name of the class
    DeviceFamily family;                ///< iPods are in the iPhones' classes
    std::span<const QSize> points;      ///< the screens of the class, in portrait
    std::span<const QSize> screenshots; ///< the sizes in pixels that the store accepts for it, in portrait
};

std::span<const ScreenClass> screenClasses();

/// The class of the model's screen; null if the screen is not known.
const ScreenClass *screenClassOf(const DeviceModel &model);

} // namespace lumora
