// SPDX-License-Identifier: MIT
#pragma once

#include "Palette.h"
#include "foundation/StoppableRead.h"
#include "foundation/WholeFile.h"

#include <stop_token>

namespace lumora
{

/// The colors of an asset catalogue.
struct CatalogueColors
{
    Palette palette;               ///< sorted by path, each color named as its set
    std::vector<Failure> failures; ///< sets that cannot be read
};

/// The most files and folders of a catalogue that are looked at.
inline constexpr int mostCatalogueEntries = 50'000;

/// Reads every color set (name.colorset) in the folder and below, but follows no links. The folder may be a color set
/// itself; `read` reads the sets' files. Fails if there is none, or with `TooLarge` for too many colors or entries.
Result<CatalogueColors> readColorCatalogue(const QString &folder, const std::stop_token &stop = {},
                                           int mostEntries = mostCatalogueEntries,
                                           const ReadFile &read = readWholeFile);

} // namespace lumora
