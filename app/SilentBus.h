// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <chrono>

namespace lumora
{

/// Whether a message bus takes connections at the address and then says nothing within the time, so that joining it
/// would hang the program for minutes. A bus that cannot be reached at all is not silent, and only addresses of
/// local sockets by path ("unix:path=...") are looked at.
bool isSilentBus(const QByteArray &address, std::chrono::milliseconds patience);

} // namespace lumora
