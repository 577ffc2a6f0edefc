// SPDX-License-Identifier: MIT
#pragma once

#include "validator/rules/Rule.h"

#include <QLatin1StringView>
#include <QString>

namespace lumora
{

/// The word before the review.
inline constexpr QLatin1StringView reviewWord("review ");

/// Reads the package in a process that is locked in: after this call the process reaches nothing but the package.
/// Answers on the descriptor, which stays open, and returns the process' status: 0 after an answer. Expects the texts
/// of the user's language to be installed and no other thread to run.
int answerReview(const QString &path, const RuleSettings &settings, int descriptor);

} // namespace lumora
