// SPDX-License-Identifier: MIT
#pragma once

namespace lumora
{

class SFBPopover;

/// The style of the shell's and the tools' popovers: white, square, with a thick border, closed when the user turns to
/// something else. The border's color is set when it is shown.
void stylePopover(SFBPopover &popover);

} // namespace lumora
