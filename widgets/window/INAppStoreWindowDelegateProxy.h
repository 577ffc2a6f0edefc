// SPDX-License-Identifier: MIT
#pragma once

namespace lumora
{

class INAppStoreWindow;

/// What a window reports to its owner and asks its owner. Every operation is optional; by default they do nothing and
/// allow everything.
class INAppStoreWindowDelegate
{
public:
    virtual ~INAppStoreWindowDelegate() = default;

    /// Returning false keeps the window open.
    virtual bool windowShouldClose(INAppStoreWindow *) { return true; }
    virtual void windowWillClose(INAppStoreWindow *) {}
    virtual void windowDidBecomeKey(INAppStoreWindow *) {}
    virtual void windowDidResignKey(INAppStoreWindow *) {}
    virtual void windowDidBecomeMain(INAppStoreWindow *) {}
    virtual void windowDidResignMain(INAppStoreWindow *) {}
    virtual void windowDidMove(INAppStoreWindow *) {}
    virtual void windowDidResize(INAppStoreWindow *) {}
    virtual void windowDidMiniaturize(INAppStoreWindow *) {}
    virtual void windowDidDeminiaturize(INAppStoreWindow *) {}
    virtual void windowWillEnterFullScreen(INAppStoreWindow *) {}
    virtual void windowDidEnterFullScreen(INAppStoreWindow *) {}
    virtual void windowWillExitFullScreen(INAppStoreWindow *) {}
    virtual void windowDidExitFullScreen(INAppStoreWindow *) {}
};

/// The delegate that every window has. It forwards every call to the real one, the secondary delegate, if there is one.
/// The window's own full-screen work comes before the delegate's.
class INAppStoreWindowDelegateProxy : public INAppStoreWindowDelegate
{
public:
    /// Not owned; null for none.
    INAppStoreWindowDelegate *secondaryDelegate() const { return m_secondaryDelegate; }
    void setSecondaryDelegate(INAppStoreWindowDelegate *delegate) { m_secondaryDelegate = delegate; }

    bool windowShouldClose(INAppStoreWindow *window) override;
    void windowWillClose(INAppStoreWindow *window) override;
    void windowDidBecomeKey(INAppStoreWindow *window) override;
    void windowDidResignKey(INAppStoreWindow *window) override;
    void windowDidBecomeMain(INAppStoreWindow *window) override;
    void windowDidResignMain(INAppStoreWindow *window) override;
    void windowDidMove(INAppStoreWindow *window) override;
    void windowDidResize(INAppStoreWindow *window) override;
    void windowDidMiniaturize(INAppStoreWindow *window) override;
    void windowDidDeminiaturize(INAppStoreWindow *window) override;
    void windowWillEnterFullScreen(INAppStoreWindow *window) override;
    void windowDidEnterFullScreen(INAppStoreWindow *window) override;
    void windowWillExitFullScreen(INAppStoreWindow *window) override;
    void windowDidExitFullScreen(INAppStoreWindow *window) override;

private:
    void forward(void (INAppStoreWindowDelegate::*operation)(INAppStoreWindow *), INAppStoreWindow *window);

    INAppStoreWindowDelegate *m_secondaryDelegate = nullptr;
};

} // namespace lumora
