// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include <optional>

namespace lumora
{

/// The texts of a table of strings, by key.
using StringsTable = QMap<QString, QString>;

/// A ".strings" file: pairs of keys and texts ("key" = "text";) in UTF-8 or UTF-16, or a property list in XML or binary
/// form. Empty when it is damaged or larger than any real one.
std::optional<StringsTable> readStringsTable(const QByteArray &bytes);

/// The largest file that is read.
inline constexpr qint64 largestStringsTable = 1 << 20;

} // namespace lumora
