// SPDX-License-Identifier: MIT
#pragma once

class QComboBox;

namespace lumora
{

/// Lets the box drop down a plain list whose rows are as high as rows of a menu and whose highlighted row can be read.
/// To be called after the box has got its own style sheet, if it has one.
void styleDropDown(QComboBox *box);

} // namespace lumora
