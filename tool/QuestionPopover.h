// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QWidget;

namespace lumora
{

class SFBPopover;

/// A popover that stays until its question is answered. It owns its content.
std::unique_ptr<SFBPopover> makeQuestionPopover(QWidget *content);

/// Closes a popover, which fades out and then deletes itself. One of its buttons may be delivering the click that
/// closes it. Null is allowed.
void retirePopover(std::unique_ptr<SFBPopover> popover);

} // namespace lumora
