// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

namespace lumora
{

class Artwork;

/// The icon as the Mac shows it, 1024 pixels wide: on the grid's body with its corners rounded and a soft shadow below,
/// transparent around it. Where the icon is transparent, so is the body, and the shadow is that of what is there.
QImage macBody(const Artwork &icon);

} // namespace lumora
