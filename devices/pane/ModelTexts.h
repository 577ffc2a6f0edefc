// SPDX-License-Identifier: MIT
#pragma once

#include "devices/today/ModelCard.h"
#include "devices/today/ReasonWords.h"

namespace lumora
{

// The words of the pane, in the user's language; the engine's are the command line's.

QString factWords(CardFact fact);
/// The fact's value, an en dash if it is not known.
QString valueWords(CardFact fact, const QString &value);
/// "iPhone 15 Pro"
QString modelName(const ModelGroup &group);

} // namespace lumora
