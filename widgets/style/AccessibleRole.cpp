// SPDX-License-Identifier: MIT
#include "AccessibleRole.h"

#include <QAccessibleWidget>
#include <QVariant>

namespace lumora
{

namespace
{

constexpr const char *roleProperty = "_lumora_accessibleRole";

QAccessibleInterface *accessibleOf(const QString &, QObject *object)
{
    const QVariant role = object->isWidgetType() ? object->property(roleProperty) : QVariant();
    return role.isValid()
               ? new QAccessibleWidget(static_cast<QWidget *>(object), static_cast<QAccessible::Role>(role.toInt()))
               : nullptr;
}

} // namespace

void setAccessibleRole(QWidget *widget, QAccessible::Role role)
{
    static const bool installed = [] {
        QAccessible::installFactory(accessibleOf);
        return true;
    }();
    Q_UNUSED(installed)
    widget->setProperty(roleProperty, static_cast<int>(role));
}

} // namespace lumora
