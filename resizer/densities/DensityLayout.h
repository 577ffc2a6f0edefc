// SPDX-License-Identifier: MIT
#pragma once

#include "Density.h"

#include <QLatin1StringView>

#include <span>

namespace lumora
{

/// A picture's place in a project without its density, from which the place of every other density follows.
struct DensityPlace
{
    QString
        folder;   ///< relative to the searched folder, "" for itself; of Android with "{density}" in the bucket's place
    QString name; ///< without density and extension
    QString suffix; ///< what follows the density in the name, "~ipad"
    QString extension;
    Density density;
    /// Whether the name or folder states the density; a 1x picture of most layouts does not.
    bool stated = false;
};

/// How a kind of project files its pictures by density.
struct DensityLayout
{
    QLatin1StringView name;
    /// Every density of the layout, the largest first.
    std::span<const Density> densities;
    /// The ones that are made where nothing else is asked for.
    std::span<const Density> usual;
    /// Reads a path relative to the searched folder, "/" between its parts; none where it is no place of the layout.
    std::optional<DensityPlace> (*place)(const QString &path);
    /// The path of the place in another density.
    QString (*path)(const DensityPlace &place, const Density &density, const QString &extension);
};

/// ios, android, flutter, react-native, web.
std::span<const DensityLayout> densityLayouts();
const DensityLayout *densityLayoutNamed(QStringView name);

} // namespace lumora
