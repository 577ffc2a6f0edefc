// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <Qt>

namespace lumora
{

/// The abilities of a popover's window on a window system, and the window type for it.
struct PopoverPlatform
{
    Qt::WindowFlags windowFlags;
    /// The window can have the keyboard itself. If not, the parent window passes its keys on.
    bool takesKeyboard = true;
    /// The system can fade a whole window; otherwise the drawing is faded.
    bool blendsWindows = true;
    /// The window can be moved while it is shown; otherwise it is hidden and shown again at the new place.
    bool movesWhileShown = true;
};

/// Decides this by Qt's name for the platform ("xcb", "wayland", ...); nothing else does.
PopoverPlatform popoverPlatform(const QString &platformName);

} // namespace lumora
