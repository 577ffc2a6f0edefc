// SPDX-License-Identifier: MIT
#pragma once

class QComboBox;

namespace lumora
{

/// Gives the box a plain drop-down list with rows as high as those of a menu, their text below that of the box, and a
/// readable highlighted row. A wheel turned over the closed box chooses nothing. Call it after setting the box's own
/// style sheet, if it has one.
void styleDropDown(QComboBox *box);

/// The look of a closed drop-down: framed like a field, with the program's own arrow. Call it before `styleDropDown`.
void frameDropDown(QComboBox *box);

} // namespace lumora
