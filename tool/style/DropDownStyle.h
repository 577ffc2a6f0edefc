// SPDX-License-Identifier: MIT
#pragma once

class QComboBox;

namespace lumora
{

/// Gives the box a plain drop-down list with rows as high as those of a menu and a readable highlighted row. Call it
/// after setting the box's own style sheet, if it has one.
void styleDropDown(QComboBox *box);

} // namespace lumora
