// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"
#include "icons/today/SetPlans.h"

#include <QString>

namespace lumora
{

/// What a catalogue that has no list yet is made for.
enum class CataloguePlatform { Ios, Mac };

/// Plans a picture for each slot that the catalogue `folder`, a path below `root`, lists, under the name that it has
/// there; a slot without a file gets one, and with it the list is written again. Slots of appearances that nothing is
/// given for and nothing follows from stay as they are. A catalogue without a list becomes a new one.
Outcome planCatalogue(const QString &root, const QString &folder, CataloguePlatform platform, const Motifs &motifs,
                      FilePlan &plan);

} // namespace lumora
