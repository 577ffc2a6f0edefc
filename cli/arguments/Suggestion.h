// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace lumora
{

/// The words that were probably meant by what was typed, the nearest first, three at most: those that differ in case
/// only, that what was typed begins or that begin it, or that a few slips of the fingers (a letter left out, added,
/// wrong or in its neighbor's place) lead away from. None where none is near.
QStringList nearestWords(const QString &typed, const QStringList &words);

} // namespace lumora
