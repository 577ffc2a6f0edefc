// SPDX-License-Identifier: MIT
#pragma once

#include "icons/today/SetPlans.h"

#include <QString>

namespace lumora
{

class Motifs;

/// The lines by which a project declares the icons of a set, each group below the name of the file it belongs into.
/// Takes as long as planning the set.
QString todaySnippet(TodaySet set, const Motifs &motifs, const SetOptions &options);

} // namespace lumora
