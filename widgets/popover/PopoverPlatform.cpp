// SPDX-License-Identifier: MIT
#include "PopoverPlatform.h"

using namespace Qt::StringLiterals;

namespace lumora
{

PopoverPlatform popoverPlatform(const QString &platformName)
{
    const Qt::WindowFlags borderless = Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint;
    PopoverPlatform platform;
    if (platformName.startsWith(u"wayland"_s)) {
        // A Wayland client cannot place a top-level window. A window of the tool-tip type becomes a popup without a
        // grab, which the compositor lays at its exact place relative to its parent and which follows the parent; one
        // of the popup type grabs the pointer and lands beside its anchor, one of the tool type lands anywhere.
        platform.windowFlags = Qt::ToolTip | borderless;
        platform.takesKeyboard = false;
        platform.blendsWindows = false;
        platform.movesWhileShown = false;
    } else {
        platform.windowFlags = Qt::Tool | borderless;
        platform.blendsWindows = platformName != u"offscreen"_s;
    }
    return platform;
}

} // namespace lumora
