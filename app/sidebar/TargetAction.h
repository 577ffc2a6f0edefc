// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

namespace lumora
{

/// Where a control sends its action: nowhere once the target is gone or while either half is missing. Two controls may
/// stand in line for one event, and the first whose pair responds sends; a signal cannot know which that is.
template <typename Sender> struct TargetAction
{
    QPointer<QObject> target;
    std::function<void(Sender *)> action;

    bool responds() const { return !target.isNull() && action != nullptr; }
};

} // namespace lumora
