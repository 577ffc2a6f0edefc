// SPDX-License-Identifier: MIT
#include "SystemMove.h"

#include "widgets/style/X11Connection.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <span>

namespace lumora
{

namespace
{

X11Reply<xcb_get_property_reply_t> property(xcb_connection_t *connection, xcb_window_t window, std::string_view name,
                                            xcb_atom_t type)
{
    constexpr uint32_t mostWords = 4096;
    const auto cookie = xcb_get_property(connection, 0, window, x11Atom(connection, name), type, 0, mostWords);
    return X11Reply<xcb_get_property_reply_t>(xcb_get_property_reply(connection, cookie, nullptr));
}

std::span<const uint32_t> words(const X11Reply<xcb_get_property_reply_t> &reply)
{
    if (!reply || reply->format != 32)
        return {};
    return {static_cast<const uint32_t *>(xcb_get_property_value(reply.get())), reply->value_len};
}

/// Whether a window manager runs that does what the message asks for; the root window keeps the list of one that ended.
bool managerSupports(xcb_connection_t *connection, xcb_window_t root, xcb_atom_t message)
{
    const auto check = property(connection, root, "_NET_SUPPORTING_WM_CHECK", XCB_ATOM_WINDOW);
    if (words(check).empty())
        return false;
    const auto own = property(connection, words(check).front(), "_NET_SUPPORTING_WM_CHECK", XCB_ATOM_WINDOW);
    if (words(own).empty() || words(own).front() != words(check).front())
        return false;
    const auto supported = property(connection, root, "_NET_SUPPORTED", XCB_ATOM_ATOM);
    return std::ranges::find(words(supported), message) != words(supported).end();
}

QPoint toPixels(const QPoint &point, const QScreen *screen)
{
    const QPoint origin = screen->geometry().topLeft();
    return origin + (QPointF(point - origin) * screen->devicePixelRatio()).toPoint();
}

bool askManager(xcb_connection_t *connection, QWindow *window, const QPoint &pressed)
{
    constexpr uint32_t move = 8;
    constexpr uint32_t fromApplication = 1;
    const auto id = static_cast<xcb_window_t>(window->winId());
    const X11Reply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, id), nullptr));
    const xcb_atom_t request = x11Atom(connection, "_NET_WM_MOVERESIZE");
    if (!geometry || !managerSupports(connection, geometry->root, request))
        return false;
    const QPoint pixels = toPixels(pressed, window->screen());
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = id;
    message.type = request;
    message.data.data32[0] = static_cast<uint32_t>(pixels.x());
    message.data.data32[1] = static_cast<uint32_t>(pixels.y());
    message.data.data32[2] = move;
    message.data.data32[3] = XCB_BUTTON_INDEX_1;
    message.data.data32[4] = fromApplication;
    // The press grabbed the pointer for this window; the manager needs it now.
    xcb_ungrab_pointer(connection, XCB_CURRENT_TIME);
    xcb_send_event(connection, 0, geometry->root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(connection);
    return true;
}

} // namespace

bool startSystemMove(QWindow *window, const QPoint &pressed, const QMouseEvent &event)
{
    xcb_connection_t *connection = x11Connection();
    // A finger has no button of the pointer; the toolkit knows which managers take it.
    if (!connection || event.pointingDevice()->type() == QInputDevice::DeviceType::TouchScreen)
        return window->startSystemMove();
    if (!askManager(connection, window, pressed))
        return false;
    QMouseEvent release(QEvent::MouseButtonRelease, window->mapFromGlobal(event.globalPosition()),
                        event.globalPosition(), Qt::LeftButton, Qt::NoButton, event.modifiers(),
                        event.pointingDevice());
    QCoreApplication::sendEvent(window, &release);
    return true;
}

} // namespace lumora
