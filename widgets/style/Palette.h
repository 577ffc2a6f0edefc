// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/ToolFacts.h"

#include <QColor>

namespace lumora::palette
{

/// An opaque color from components 0 to 1, kept exactly in single precision.
inline QColor rgb(float red, float green, float blue)
{
    return QColor::fromRgbF(red, green, blue);
}

/// Body text, borders, and everything without a tool's or a message's color.
inline const QColor chromeText = rgb(0.204F, 0.286F, 0.369F);
/// The same, pressed or under the pointer.
inline const QColor chromeTextDark = rgb(0.153F, 0.216F, 0.278F);
/// The window, the panes and the popups.
inline const QColor window = rgb(1, 1, 1);
/// The title in the header band.
inline const QColor headerText = rgb(1, 1, 1);
/// The shadow of the title and of the header's symbols.
inline const QColor headerShadow = QColor::fromRgbF(0.0F, 0.0F, 0.0F, 0.16F);
/// Rounded panels inside a pane.
inline const QColor panel = rgb(0.925F, 0.941F, 0.945F);
/// The dashed outline of a drop area at rest.
inline const QColor panelOutline = rgb(0.741F, 0.765F, 0.780F);
/// Thin rules inside popovers.
inline const QColor separator = rgb(0.584F, 0.647F, 0.651F);

/// Each tool's color fills header and sidebar; its border shade draws their borders.
inline const QColor icons = platformColor(factsOf(ToolIndex::Icons).color);
inline const QColor iconsBorder = platformColor(factsOf(ToolIndex::Icons).borderColor);
inline const QColor placeholders = platformColor(factsOf(ToolIndex::Placeholders).color);
inline const QColor placeholdersBorder = platformColor(factsOf(ToolIndex::Placeholders).borderColor);
inline const QColor resizer = platformColor(factsOf(ToolIndex::Resizer).color);
inline const QColor resizerBorder = platformColor(factsOf(ToolIndex::Resizer).borderColor);
inline const QColor color = platformColor(factsOf(ToolIndex::Color).color);
inline const QColor colorBorder = platformColor(factsOf(ToolIndex::Color).borderColor);
inline const QColor devices = platformColor(factsOf(ToolIndex::Devices).color);
inline const QColor devicesBorder = platformColor(factsOf(ToolIndex::Devices).borderColor);
inline const QColor validator = platformColor(factsOf(ToolIndex::Validator).color);
inline const QColor validatorBorder = platformColor(factsOf(ToolIndex::Validator).borderColor);

/// The kinds of message: success, failure, information.
inline const QColor successLight = placeholders;
inline const QColor successDark = placeholdersBorder;
inline const QColor errorLight = resizer;
inline const QColor errorDark = resizerBorder;
inline const QColor infoLight = icons;
inline const QColor infoDark = iconsBorder;

/// The contact buttons of the about panel.
inline const QColor socialBlue = rgb(0.247F, 0.737F, 0.937F);
inline const QColor socialBlueDark = rgb(0.224F, 0.663F, 0.843F);
inline const QColor networkNavy = rgb(0.114F, 0.165F, 0.388F);
inline const QColor networkNavyDark = rgb(0.082F, 0.122F, 0.290F);

/// The line along a window's edges, so that a white window shows on a white one.
inline const QColor windowOutline = QColor::fromRgbF(0.0F, 0.0F, 0.0F, 0.28F);
/// A window's title in its title bar.
inline const QColor titleText = rgb(0.22F, 0.22F, 0.22F);
inline const QColor inactiveTitleText = rgb(0.36F, 0.36F, 0.36F);

/// A popover's shadow on the window below it.
inline const QColor popoverShadow = QColor::fromRgbF(0.0F, 0.0F, 0.0F, 0.35F);

/// Filled buttons: their text, and their colors before their owner sets others.
inline const QColor buttonText = rgb(1, 1, 1);
/// Darkens a filled button while it is pressed.
inline const QColor pressedShade = QColor::fromRgbF(0.0F, 0.0F, 0.0F, 0.14F);
inline const QColor button = icons;
inline const QColor buttonHover = iconsBorder;
/// The opacity of disabled controls.
inline constexpr double disabledOpacity = 0.5;
/// The focus ring: on a pane, and the inner of the two lines on a filled control.
inline const QColor focusRing = iconsBorder;
inline const QColor focusRingInner = rgb(1, 1, 1);

/// The progress bar: its filled part and stripes before its owner sets others, the faint light on its outline, and two
/// lines that are transparent by default.
inline const QColor progressLight = resizer;
inline const QColor progressDark = resizerBorder;
inline const QColor progressHighlight = QColor::fromRgbF(1.0F, 1.0F, 1.0F, 0.2F);
inline const QColor progressBase = QColor::fromRgbF(17.0F / 255, 20.0F / 255, 23.0F / 255, 0.0F);
inline const QColor progressShadow = QColor::fromRgbF(0.0F, 0.0F, 0.0F, 0.0F);

/// Icon tabs: the marks of a selected tab and of the tab under the pointer.
inline const QColor tabSelected = QColor::fromRgbF(0.204F, 0.286F, 0.369F, 0.22F);
inline const QColor tabHover = QColor::fromRgbF(0.204F, 0.286F, 0.369F, 0.09F);

/// Links, and the background of selected text: the icons' blue, dark enough to be readable on white and below white
/// text.
inline const QColor linkText = rgb(0.137F, 0.443F, 0.647F);

/// Text fields: the box, the placeholder text, and the selection.
inline const QColor textFieldBackground = rgb(1, 1, 1);
inline const QColor placeholderText = rgb(0.38F, 0.44F, 0.48F);
inline const QColor selectedText = rgb(1, 1, 1);
inline const QColor selectedTextBackground = linkText;

/// The sidebar's blue, until a tool sets its color.
inline const QColor sidebar = rgb(0.341F, 0.565F, 0.898F);
/// The selected item's frame, the item under the pointer, and the ring while keys go to the sidebar.
inline const QColor sidebarSelection = rgb(1, 1, 1);
inline const QColor sidebarHover = QColor::fromRgbF(1, 1, 1, 0.15F);
inline const QColor sidebarFocus = QColor::fromRgbF(1, 1, 1, 0.6F);

/// The checkered pattern behind a translucent color.
inline const QColor transparencyLight = rgb(1.0F, 1.0F, 1.0F);
inline const QColor transparencyDark = rgb(0.831F, 0.851F, 0.863F);
/// Keeps a white swatch visible on white.
inline const QColor swatchOutline = QColor::fromRgbF(0.0F, 0.0F, 0.0F, 0.18F);
/// Rings and knobs on colors: bright with a dark edge, so that they show on every color.
inline const QColor marker = rgb(1.0F, 1.0F, 1.0F);
inline const QColor markerEdge = QColor::fromRgbF(0.0F, 0.0F, 0.0F, 0.45F);

} // namespace lumora::palette
