// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>

namespace lumora
{

/// Whether the down-scaler takes the file: one of the markers "@2x", "@2X", "-hd", "-HD" is anywhere in its path,
/// folder names included, and its extension is exactly "png". Looks at the text only.
bool isDoubleResolution(const QString &path);

/// The last component of the path without its markers: all "@2x", then all "@2X", then all "-hd", then all "-HD".
QString singleResolutionName(const QString &path);

/// Half the pixels in each direction, rounded down, but a single one stays one.
QSize halfSize(QSize pixels);

} // namespace lumora
