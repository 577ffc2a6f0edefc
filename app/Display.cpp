// SPDX-License-Identifier: MIT
#include "Display.h"

#include "foundation/FileDescriptor.h"

#include <QByteArray>

#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>

#include <xcb/xcb.h>

namespace lumora
{

namespace
{

constexpr char platformVariable[] = "QT_QPA_PLATFORM";

bool waylandAnswers()
{
    QByteArray path = qgetenv("WAYLAND_DISPLAY");
    if (path.isEmpty())
        return false;
    if (!path.startsWith('/'))
        path = qgetenv("XDG_RUNTIME_DIR") + '/' + path;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (static_cast<std::size_t>(path.size()) >= sizeof address.sun_path)
        return false;
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    return socket.valid() &&
           ::connect(socket.number(), reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
}

} // namespace

Display::Display()
{
    const QByteArray platform = qgetenv(platformVariable);
    if (platform.startsWith("xcb")) {
        m_reachable = xAnswers();
    } else if (platform.startsWith("wayland")) {
        m_reachable = waylandAnswers();
    } else if (!platform.isEmpty() || xAnswers()) {
        m_reachable = true;
    } else if (waylandAnswers()) {
        qputenv(platformVariable, "wayland");
        m_reachable = true;
    }
}

Display::~Display()
{
    if (m_connection != nullptr)
        xcb_disconnect(m_connection);
}

bool Display::xAnswers()
{
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        return false;
    m_connection = xcb_connect(nullptr, nullptr);
    return xcb_connection_has_error(m_connection) == 0;
}

} // namespace lumora
