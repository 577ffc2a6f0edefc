// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>

#include <span>

namespace lumora
{

/// The fixed sets of placeholder pictures.
enum class PlaceholderSet { Ios, Mac };

/// The shortest and longest edge of a custom placeholder, in pixels.
inline constexpr int shortestPlaceholderEdge = 1;
inline constexpr int longestPlaceholderEdge = 9999;

/// The sizes of a set's pictures in pixels, in the order of writing. No size is in a set twice, since files are named
/// for it.
std::span<const QSize> placeholderSizes(PlaceholderSet set);

/// Whether a custom picture may have an edge of that length in pixels.
constexpr bool isPlaceholderEdge(int pixels)
{
    return pixels >= shortestPlaceholderEdge && pixels <= longestPlaceholderEdge;
}

/// The name of the file that holds the placeholder of that size ("placeholder_1136x640.png").
QString placeholderFileName(QSize size);

} // namespace lumora
