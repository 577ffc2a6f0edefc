// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace lumora
{

/// A wheel turned over the control scrolls what the control lies in and leaves its value and the focus alone.
void passWheel(QWidget *control);

} // namespace lumora
