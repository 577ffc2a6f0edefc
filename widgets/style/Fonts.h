// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

namespace lumora
{

/// The program's own fonts at a size in points, one point being one logical pixel. Returns a bold or regular sans-serif
/// of the same size if the compiled-in font cannot be loaded. Needs a QGuiApplication.
QFont latoBold(int points);
QFont latoRegular(int points);

} // namespace lumora
