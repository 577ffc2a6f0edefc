// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

namespace lumora
{

/// Tells the platform's accessibility what a widget is that paints itself and is operated by nobody: a picture, an
/// area. Without it such a widget counts as mere filling, and its name is passed over.
void setAccessibleRole(QWidget *widget, QAccessible::Role role);

} // namespace lumora
