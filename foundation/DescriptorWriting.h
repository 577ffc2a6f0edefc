// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace lumora
{

/// Writes all bytes, however many calls that takes; false with `errno` set when the system takes no more.
bool writeAll(int descriptor, const QByteArray &bytes);

} // namespace lumora
