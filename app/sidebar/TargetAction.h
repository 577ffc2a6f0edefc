// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

namespace lumora
{

/// The target and action of a control. Sends nothing once the target is deleted or while either half is missing. Not a
/// signal, since of two controls for one event only the first with a responding pair may send.
template <typename Sender> struct TargetAction
{
    QPointer<QObject> target;
    std::function<void(Sender *)> action;

    bool responds() const { return !target.isNull() && action != nullptr; }
};

} // namespace lumora
