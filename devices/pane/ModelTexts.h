// SPDX-License-Identifier: MIT
#pragma once

#include "devices/today/ModelCard.h"

#include <vector>

namespace lumora
{

// The words of the pane, in the user's language; the engine's are the command line's.

/// "ends at iOS 12.5.8; lacks arkit".
QString reasonWords(const std::vector<FallsOutReason> &reasons);
QString factWords(CardFact fact);
/// The fact's value, an en dash if it is not known.
QString valueWords(CardFact fact, const QString &value);
QString biometryWords(Biometry biometry);
QString featureWords(ModelFeature feature);
/// "iPhone 15 Pro"
QString modelName(const ModelGroup &group);

} // namespace lumora
