// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/FilledText.h"

#include <QString>
#include <QStringList>

#include <initializer_list>

namespace lumora
{

/// The text of a key in the user's language, with its bracketed names replaced. Names inside a replacement stay.
QString commandText(const char *key, std::initializer_list<TextValue> values = {});

/// "none, ios6 or ios7".
QString alternatives(const QStringList &words);

/// The word in double quotes, as messages cite what was typed.
QString quoted(const QString &word);

} // namespace lumora
