// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

namespace lumora
{

/// Has every widget of the class, which needs the Q_OBJECT macro, represented to assistive technology by an interface
/// of the other class, made from a pointer to the widget. To be called in the widget's constructor; the first call
/// counts.
template <typename Widget, typename Interface> void installAccessible()
{
    static const bool installed = [] {
        QAccessible::installFactory([](const QString &, QObject *object) -> QAccessibleInterface * {
            auto *widget = qobject_cast<Widget *>(object);
            return widget == nullptr ? nullptr : new Interface(widget);
        });
        return true;
    }();
    Q_UNUSED(installed)
}

} // namespace lumora
