// SPDX-License-Identifier: MIT
#pragma once

class QSvgRenderer;

namespace lumora
{

/// What drawing a picture once would take, found without touching a pixel.
struct SvgEffort
{
    double coverage = 0; ///< areas of all shapes together, in areas of the picture
    double points = 0;   ///< of all outlines, dashes included
};

/// Has the drawing go through a painter that only measures.
SvgEffort svgEffort(QSvgRenderer &renderer);

} // namespace lumora
