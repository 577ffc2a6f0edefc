// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace lumora
{

/// The words that were probably meant, the nearest first, at most three: words that differ from the typed one only in
/// case, that begin with it or with which it begins, or that differ by a few typing errors (a missing, added, wrong or
/// swapped letter). Empty if no word is near.
QStringList nearestWords(const QString &typed, const QStringList &words);

} // namespace lumora
