// SPDX-License-Identifier: MIT
#include "QuestionPopover.h"

#include "tool/style/PopoverStyle.h"
#include "widgets/popover/SFBPopover.h"
#include "widgets/style/Palette.h"

namespace lumora
{

std::unique_ptr<SFBPopover> makeQuestionPopover(QWidget *content)
{
    auto popover = std::make_unique<SFBPopover>(content);
    stylePopover(*popover);
    popover->setClosesWhenApplicationBecomesInactive(false);
    popover->setClosesWhenPopoverResignsKey(false);
    popover->setBorderColor(palette::chromeText);
    return popover;
}

void retirePopover(std::unique_ptr<SFBPopover> popover)
{
    SFBPopover *retired = popover.release();
    if (retired == nullptr)
        return;
    if (!retired->isVisible()) {
        retired->deleteLater();
        return;
    }
    QObject::connect(retired, &SFBPopover::closed, retired, &QObject::deleteLater);
    retired->closePopover();
}

} // namespace lumora
