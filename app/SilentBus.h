// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <chrono>

namespace lumora
{

/// Whether a message bus accepts connections at the address but does not answer within the time, so that connecting to
/// it would block the program for minutes. A bus that cannot be reached is not silent. Only addresses of local sockets
/// by path ("unix:path=...") are checked.
bool isSilentBus(const QByteArray &address, std::chrono::milliseconds patience);

} // namespace lumora
