// SPDX-License-Identifier: MIT
#pragma once

#include "ModelFilter.h"

#include <QString>

#include <vector>

namespace lumora
{

/// "ends at iOS 12.5.8; lacks arkit", in the user's language; `reasonText` is for programs.
QString reasonWords(const std::vector<FallsOutReason> &reasons);
QString biometryWords(Biometry biometry);
/// The words of the biometry that the engine calls by this key; of none, the key.
QString biometryWords(const QString &key);
QString featureWords(ModelFeature feature);

} // namespace lumora
