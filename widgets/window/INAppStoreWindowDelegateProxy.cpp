// SPDX-License-Identifier: MIT
#include "INAppStoreWindowDelegateProxy.h"

namespace lumora
{

void INAppStoreWindowDelegateProxy::forward(void (INAppStoreWindowDelegate::*operation)(INAppStoreWindow *),
                                            INAppStoreWindow *window)
{
    if (m_secondaryDelegate)
        (m_secondaryDelegate->*operation)(window);
}

bool INAppStoreWindowDelegateProxy::windowShouldClose(INAppStoreWindow *window)
{
    return !m_secondaryDelegate || m_secondaryDelegate->windowShouldClose(window);
}

void INAppStoreWindowDelegateProxy::windowWillClose(INAppStoreWindow *window)
{
    forward(&INAppStoreWindowDelegate::windowWillClose, window);
}

void INAppStoreWindowDelegateProxy::windowDidBecomeKey(INAppStoreWindow *window)
{
    forward(&INAppStoreWindowDelegate::windowDidBecomeKey, window);
}

void INAppStoreWindowDelegateProxy::windowDidResignKey(INAppStoreWindow *window)
{
    forward(&INAppStoreWindowDelegate::windowDidResignKey, window);
}

void INAppStoreWindowDelegateProxy::windowDidBecomeMain(INAppStoreWindow *window)
{
    forward(&INAppStoreWindowDelegate::windowDidBecomeMain, window);
}

void INAppStoreWindowDelegateProxy::windowDidResignMain(INAppStoreWindow *window)
{
    forward(&INAppStoreWindowDelegate::windowDidResignMain, window);
}

void INAppStoreWindowDelegateProxy::windowDidMove(INAppStoreWindow *window)
{
    forward(&INAppStoreWindowDelegate::windowDidMove, window);
}

void INAppStoreWindowDelegateProxy::windowDidResize(INAppStoreWindow *window)
{
    forward(&INAppStoreWindowDelegate::windowDidResize, window);
}

void INAppStoreWindowDelegateProxy::windowDidMiniaturize(INAppStoreWindow *window)
{
    forward(&INAppStoreWindowDelegate::windowDidMiniaturize, window);
}

void INAppStoreWindowDelegateProxy::windowDidDeminiaturize(INAppStoreWindow *window)
{
    forward(&INAppStoreWindowDelegate::windowDidDeminiaturize, window);
}

void INAppStoreWindowDelegateProxy::windowWillEnterFullScreen(INAppStoreWindow *window)
{
    forward(&INAppStoreWindowDelegate::windowWillEnterFullScreen, window);
}

void INAppStoreWindowDelegateProxy::windowDidEnterFullScreen(INAppStoreWindow *window)
{
    forward(&INAppStoreWindowDelegate::windowDidEnterFullScreen, window);
}

void INAppStoreWindowDelegateProxy::windowWillExitFullScreen(INAppStoreWindow *window)
{
    forward(&INAppStoreWindowDelegate::windowWillExitFullScreen, window);
}

void INAppStoreWindowDelegateProxy::windowDidExitFullScreen(INAppStoreWindow *window)
{
    forward(&INAppStoreWindowDelegate::windowDidExitFullScreen, window);
}

} // namespace lumora
