// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"
#include "icons/today/SetPlans.h"

#include <QString>

namespace lumora
{

/// The platform of a catalogue that has no list yet.
enum class CataloguePlatform { Ios, Mac };

/// Plans a picture for each slot in the list of the catalogue `folder`, a path below `root`, under the slot's file
/// name. If a slot has no file name, it gets one, and the list is written again. Slots for appearances that are neither
/// given nor derived stay unchanged. A catalogue without a list gets a new one.
Outcome planCatalogue(const QString &root, const QString &folder, CataloguePlatform platform, const Motifs &motifs,
                      FilePlan &plan);

} // namespace lumora
