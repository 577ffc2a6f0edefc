// SPDX-License-Identifier: MIT
#include "PortalPipette.h"
#include "X11Pipette.h"

namespace lumora
{

namespace
{

/// Asks the portal first: it works on every kind of desktop and shows what the user is used to.
class ScreenPipette final : public Pipette
{
public:
    ScreenPipette()
    {
        for (Pipette *pipette : {static_cast<Pipette *>(&m_portal), static_cast<Pipette *>(&m_x11)}) {
            connect(pipette, &Pipette::picked, this, &Pipette::picked);
            connect(pipette, &Pipette::cancelled, this, &Pipette::cancelled);
            connect(pipette, &Pipette::failed, this, &Pipette::failed);
        }
    }

    void pick(QWidget *window) override
    {
        if (m_portal.isAvailable())
            m_portal.pick(window);
        else if (X11Pipette::isAvailable())
            m_x11.pick(window);
        else
            emit failed();
    }

private:
    PortalPipette m_portal{QDBusConnection::sessionBus()};
    X11Pipette m_x11;
};

} // namespace

std::unique_ptr<Pipette> makeScreenPipette()
{
    return std::make_unique<ScreenPipette>();
}

} // namespace lumora
