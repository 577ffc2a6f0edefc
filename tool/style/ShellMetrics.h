// SPDX-License-Identifier: MIT
#pragma once

namespace lumora::metrics
{

/// The window's fixed parts, in points; everything else depends on the window's size.
inline constexpr int windowWidth = 900;
inline constexpr int windowHeight = 660;
inline constexpr int titleBarHeight = 60;
inline constexpr int sidebarWidth = 60;
/// The colored bands under the title bar and between sidebar and tool.
inline constexpr int borderWidth = 5;
/// The offset from a tool view's coordinates to the window's: the tool begins right of sidebar and band.
inline constexpr int toolLeft = sidebarWidth + borderWidth;
/// The distance from a control to the arrow of the message that points at it.
inline constexpr int popupGap = 5;

} // namespace lumora::metrics
