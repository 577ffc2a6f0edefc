// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

namespace lumora
{

class Artwork;

/// The icon as the Mac shows it, `edge` pixels wide: on the grid's body with its corners rounded and a soft shadow
/// below, transparent around it. Where the icon is transparent, the body is transparent, too, and casts no shadow.
QImage macBody(const Artwork &icon, int edge);

} // namespace lumora
