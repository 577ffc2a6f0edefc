// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QStringList>

#include <vector>

namespace lumora
{

/// Why a file could not be read or written, in the user's language: "could not be written (No space left on device)".
/// Names no file.
QString failureReason(const Failure &failure);

/// One line for each reason: "icons/a.png and 3 more: could not be written". Paths below `folder` are shown relative to
/// it.
QStringList failureLines(const std::vector<Failure> &failures, const QString &folder);

} // namespace lumora
