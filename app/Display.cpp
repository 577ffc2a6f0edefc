// SPDX-License-Identifier: MIT
#include "Display.h"

#include <QByteArray>

#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <xcb/xcb.h>

namespace lumora
{

namespace
{

constexpr char platformVariable[] = "QT_QPA_PLATFORM";

bool xAnswers()
{
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        return false;
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

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
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (descriptor < 0)
        return false;
    const bool answers = ::connect(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    ::close(descriptor);
    return answers;
}

} // namespace

bool prepareDisplay()
{
    const QByteArray platform = qgetenv(platformVariable);
    if (platform.startsWith("xcb"))
        return xAnswers();
    if (platform.startsWith("wayland"))
        return waylandAnswers();
    if (!platform.isEmpty())
        return true;
    const bool wayland = waylandAnswers();
    if (xAnswers())
        return true;
    if (wayland)
        qputenv(platformVariable, "wayland");
    return wayland;
}

} // namespace lumora
