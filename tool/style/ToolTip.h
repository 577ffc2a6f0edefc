// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QString>

namespace lumora
{

/// A tool tip with a shortcut: "Choose from a folder (Ctrl+O)". Without the part in brackets if there is no shortcut.
QString tipWithKeys(const QString &text, const QKeySequence &keys);

} // namespace lumora
