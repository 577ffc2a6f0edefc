// SPDX-License-Identifier: MIT
#pragma once

#include "ModelGroup.h"

#include <QSize>
#include <QString>
#include <QStringList>

#include <array>
#include <vector>

namespace lumora
{

/// The facts on a model's card, in the card's order. An unknown fact is an empty value.
enum class CardFact {
    Identifiers,
    Released,
    Chip,
    Architecture,
    MinimumOs,
    NewestOs,
    Screen, ///< pixels of the panel
    Render, ///< pixels that apps draw
    Points,
    Scale,
    Diagonal,
    Density,
    ScreenClassKey,
    Biometry,
    DynamicIsland,
    Lidar,
    UsbC,
    Cellular5G,
    Capabilities,
    LaunchSizes,
    ScreenshotSizes,
};

inline constexpr int cardFactCount = static_cast<int>(CardFact::ScreenshotSizes) + 1;

/// The fact's English name, such as "minimum iOS".
QString cardFactName(CardFact fact);

/// The fact as text, to be shown or copied; several values of a group are joined by ", ".
QString cardText(const ModelGroup &group, CardFact fact);

/// The size of a launch screen in portrait and landscape, in pixels.
std::vector<QSize> launchSizes(const DeviceModel &model);
/// The sizes of screenshots that the App Store accepts for the model's screen, in portrait and landscape.
std::vector<QSize> screenshotSizes(const DeviceModel &model);

/// One fact of several models side by side.
struct ComparedFact
{
    CardFact fact = {};
    QStringList values; ///< in the order of the groups
    bool differs = false;
};

std::vector<ComparedFact> comparedFacts(const std::vector<ModelGroup> &groups);

} // namespace lumora
