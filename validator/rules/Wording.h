// SPDX-License-Identifier: MIT
#pragma once

#include "Rule.h"

#include <QString>
#include <QStringList>

namespace lumora
{

/// The text of the key in the language of the installed texts, with the values in the place of [A], [B] and [C].
QString worded(const char *key, const QStringList &values = {});

/// "Error", "Warning", "Note".
QString severityText(Severity severity);

/// The same within a line: "error", "warning", "note".
QString severityWord(Severity severity);

/// The user's word for a signature's verdict or a profile's kind as results name them; other texts are their own words.
QString valueWord(const QString &value);

/// "3 errors, 2 warnings"; without findings, that there are none.
QString findingSumText(const QList<Finding> &findings);

} // namespace lumora
