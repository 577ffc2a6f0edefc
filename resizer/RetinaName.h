// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>

namespace lumora
{

/// Whether the down-scaler accepts the file: its path, folder names included, contains one of the markers "@2x", "@2X",
/// "-hd", "-HD", and its extension is exactly "png". Looks at the text only.
bool isDoubleResolution(const QString &path);

/// The last component of the path without its markers: all "@2x", then all "@2X", then all "-hd", then all "-HD".
QString singleResolutionName(const QString &path);

/// Half the pixels in each direction, rounded down, but at least one.
QSize halfSize(QSize pixels);

} // namespace lumora
