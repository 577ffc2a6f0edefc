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
        // grab: the compositor puts it at its exact place relative to its parent and moves it with the parent. A window
        // of the popup type grabs the pointer and appears beside its anchor, and one of the tool type may appear
        // anywhere.
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
