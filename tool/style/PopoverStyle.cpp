// SPDX-License-Identifier: MIT
#include "PopoverStyle.h"

#include "widgets/popover/SFBPopover.h"
#include "widgets/style/Palette.h"

namespace lumora
{

void stylePopover(SFBPopover &popover)
{
    popover.setBackgroundColor(palette::window);
    popover.setCornerRadius(0);
    popover.setBorderWidth(5);
    popover.setArrowHeight(5);
    popover.setClosesWhenApplicationBecomesInactive(true);
    popover.setClosesWhenPopoverResignsKey(true);
}

} // namespace lumora
