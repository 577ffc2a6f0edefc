// SPDX-License-Identifier: MIT
#include "PortalPipette.h"
#include "X11Pipette.h"

namespace lumora
{

namespace
{

/// Tries the portal first: it works on every kind of desktop, with a picker that the user knows.
class ScreenPipette final : public Pipette
{
public:
    void pick(QWidget *window) override
    {
        m_window = window;
        portal()->pick(window);
    }

private:
    /// Made at the first pick, so that merely opening the picker does not connect to the bus.
    PortalPipette *portal()
    {
        if (m_portal == nullptr) {
            m_portal = new PortalPipette(QDBusConnection::sessionBus(), this);
            passOn(m_portal);
            connect(m_portal, &PortalPipette::unavailable, this, &ScreenPipette::pickWithoutPortal);
            passOn(&m_x11);
        }
        return m_portal;
    }
    void passOn(Pipette *pipette)
    {
        connect(pipette, &Pipette::picked, this, &Pipette::picked);
        connect(pipette, &Pipette::canceled, this, &Pipette::canceled);
        connect(pipette, &Pipette::failed, this, &Pipette::failed);
    }
    void pickWithoutPortal()
    {
        if (m_window && X11Pipette::isAvailable())
            m_x11.pick(m_window);
        else
            emit failed();
    }

    QPointer<QWidget> m_window;
    PortalPipette *m_portal = nullptr;
    X11Pipette m_x11;
};

} // namespace

std::unique_ptr<Pipette> makeScreenPipette()
{
    return std::make_unique<ScreenPipette>();
}

} // namespace lumora
