// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

namespace lumora
{

/// Presents every widget of the class, which needs the Q_OBJECT macro, to assistive technology by an object of the
/// interface class, constructed from a pointer to the widget. Call it in the widget's constructor; only the first call
/// has an effect.
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
