// SPDX-License-Identifier: MIT
#pragma once

#include "Density.h"

#include <QLatin1StringView>

#include <span>

namespace lumora
{

/// A picture's path in a project without its density; the paths of all other densities follow from it.
struct DensityPlace
{
    QString folder; ///< relative to the searched folder, or ""; for Android with "{density}" in place of the bucket
    QString name;   ///< without density and extension
    QString suffix; ///< the text after the density in the name, "~ipad"
    QString extension;
    Density density;
    /// Whether the name or folder states the density; in most layouts a 1x picture does not.
    bool stated = false;
};

/// How a kind of project names its pictures by density.
struct DensityLayout
{
    QLatin1StringView name;
    /// Every density of the layout, the largest first.
    std::span<const Density> densities;
    /// The densities that are made by default.
    std::span<const Density> usual;
    /// Reads a path relative to the searched folder, with "/" between its parts; empty if the layout has no such path.
    std::optional<DensityPlace> (*place)(const QString &path);
    /// The same for an SVG drawing, which needs no density in its path.
    std::optional<DensityPlace> (*drawingPlace)(const QString &path);
    /// The path of the picture in another density.
    QString (*path)(const DensityPlace &place, const Density &density, const QString &extension);
};

/// The layouts ios, android, flutter, react-native and web.
std::span<const DensityLayout> densityLayouts();
const DensityLayout *densityLayoutNamed(QStringView name);

} // namespace lumora
