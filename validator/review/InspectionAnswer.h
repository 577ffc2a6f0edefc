// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <QString>

namespace lumora
{

/// The words before the two parts of an inspection's answer.
inline constexpr QLatin1StringView gatheredWord("gathered ");
inline constexpr QLatin1StringView artworkWord("artwork ");

/// The folder in the work folder that the inspection unpacks into. It has to exist: the process may write nowhere else.
inline constexpr QLatin1StringView inspectionFolder("Documents");

/// Unpacks and inspects the package in a process that is locked in: after this call the process reaches nothing but the
/// package and its folder in the work folder. Answers on the descriptor, which stays open, and returns the process'
/// status: 0 after an answer.
int answerInspection(const QString &path, const QString &workFolder, int iconScale, int descriptor);

} // namespace lumora
