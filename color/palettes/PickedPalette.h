// SPDX-License-Identifier: MIT
#pragma once

#include "Palette.h"

#include <QSet>

namespace lumora
{

/// The colors that were picked while the program runs, the oldest first, each once.
class PickedPalette
{
public:
    const Palette &colors() const { return m_colors; }
    /// Adds the color at the end, named by CSS or else by its code; nothing if it is there already, to the last
    /// digit that a palette file keeps. Returns whether it
    /// was added. The oldest ones go when there are more than `mostPaletteColors`.
    bool add(const WideColor &color);
    /// The same for each of these, with their names. Returns how many were added.
    std::size_t add(const Palette &palette);
    void remove(std::size_t index);

private:
    bool append(const PaletteColor &entry);

    Palette m_colors;
    QSet<QString> m_known; ///< the texts of the colors
};

} // namespace lumora
