// SPDX-License-Identifier: MIT
#include "SilentBus.h"

#include "foundation/FileDescriptor.h"

#include <cerrno>
#include <cstring>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace lumora
{

namespace
{

/// Every connection begins with a byte 0. Every bus must answer the question for its authentication mechanisms.
constexpr char greeting[] = "\0AUTH\r\n";

QByteArray pathOf(const QByteArray &address)
{
    constexpr char prefix[] = "unix:path=";
    if (!address.startsWith(prefix))
        return {};
    const QByteArray first = address.split(';').first();
    return first.mid(sizeof prefix - 1).split(',').first();
}

} // namespace

bool isSilentBus(const QByteArray &address, std::chrono::milliseconds patience)
{
    const QByteArray path = pathOf(address);
    sockaddr_un place{};
    place.sun_family = AF_UNIX;
    if (path.isEmpty() || static_cast<std::size_t>(path.size()) >= sizeof place.sun_path)
        return false;
    std::memcpy(place.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    const FileDescriptor bus(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!bus.valid())
        return false;
    // The bus has not accepted the connections that already wait.
    if (::connect(bus.number(), reinterpret_cast<const sockaddr *>(&place), sizeof place) != 0)
        return errno == EAGAIN;
    constexpr std::size_t length = sizeof greeting - 1;
    pollfd answer{bus.number(), POLLIN, 0};
    return ::send(bus.number(), greeting, length, MSG_NOSIGNAL) == static_cast<ssize_t>(length) &&
           ::poll(&answer, 1, static_cast<int>(patience.count())) == 0;
}

} // namespace lumora
