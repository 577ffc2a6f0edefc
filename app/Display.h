// SPDX-License-Identifier: MIT
#pragma once

namespace lumora
{

/// Whether a window can be opened at all: a display server answers, or the user asked for a platform that needs none.
/// Where only one kind of server answers, the toolkit is told to use that one. Ask before the application object is
/// made: the toolkit itself would abort the program.
bool prepareDisplay();

} // namespace lumora
