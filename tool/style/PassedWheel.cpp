// SPDX-License-Identifier: MIT
#include "PassedWheel.h"

#include <QEvent>
#include <QWidget>

namespace lumora
{

namespace
{

class WheelPasser final : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Wheel)
            return QObject::eventFilter(watched, event);
        // The event goes on to the parent.
        event->ignore();
        return true;
    }
};

} // namespace

void passWheel(QWidget *control)
{
    if (control->focusPolicy() == Qt::WheelFocus)
        control->setFocusPolicy(Qt::StrongFocus);
    control->installEventFilter(new WheelPasser(control));
}

} // namespace lumora
