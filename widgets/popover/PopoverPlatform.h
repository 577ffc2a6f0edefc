// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <Qt>

namespace lumora
{

/// What a window system lets a popover's window do, and the window type that follows from it.
struct PopoverPlatform
{
    Qt::WindowFlags windowFlags;
    /// Its window can have the keyboard itself. Where it cannot, the parent window hands its keys on.
    bool takesKeyboard = true;
    /// The system blends a whole window; elsewhere the drawing is faded.
    bool blendsWindows = true;
    /// It can be moved while it is shown; elsewhere it is hidden and shown again at the new place.
    bool movesWhileShown = true;
};

/// The one place where that is decided, by the name Qt gives the platform ("xcb", "wayland", ...).
PopoverPlatform popoverPlatform(const QString &platformName);

} // namespace lumora
