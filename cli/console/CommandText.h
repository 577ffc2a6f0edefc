// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <initializer_list>
#include <utility>

namespace lumora
{

/// A bracketed name in a text, such as "[FILE]", and its replacement.
using TextValue = std::pair<const char *, QString>;

/// The text of a key in the user's language, with its bracketed names replaced. Names inside a replacement stay.
QString commandText(const char *key, std::initializer_list<TextValue> values = {});

/// "none, ios6 or ios7".
QString alternatives(const QStringList &words);

/// The word in double quotes, as messages cite what was typed.
QString quoted(const QString &word);

} // namespace lumora
