// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

namespace lumora
{

/// Sets the accessible role of a painted widget without interaction: a picture, an area. Without a role, screen readers
/// treat such a widget as filler and skip its name.
void setAccessibleRole(QWidget *widget, QAccessible::Role role);

} // namespace lumora
