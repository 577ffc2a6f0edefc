// SPDX-License-Identifier: MIT
#include "ToolTip.h"

using namespace Qt::StringLiterals;

namespace lumora
{

QString tipWithKeys(const QString &text, const QKeySequence &keys)
{
    return keys.isEmpty() ? text : text + u" ("_s + keys.toString(QKeySequence::NativeText) + u')';
}

} // namespace lumora
