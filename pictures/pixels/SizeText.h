// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>

namespace lumora
{

/// A picture's size as failures state it: "640 x 480 pixels".
QString pixelsText(QSize size);

} // namespace lumora
