// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>

namespace lumora
{

/// Frees what the X server answered.
struct FreeReply
{
    void operator()(void *reply) const { std::free(reply); }
};

template <typename Reply> using X11Reply = std::unique_ptr<Reply, FreeReply>;

/// The X11 connection of the application, or nullptr on every other platform.
xcb_connection_t *x11Connection();

/// The server's number for the name; XCB_ATOM_NONE if it does not answer. Waits for the server.
xcb_atom_t x11Atom(xcb_connection_t *connection, std::string_view name);

} // namespace lumora
