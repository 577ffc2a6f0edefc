// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace lumora
{

/// A controller that has only a view, as a popover's content needs. The widget that shows the view owns it.
class ViewController : public QObject
{
    Q_OBJECT

public:
    explicit ViewController(QWidget *view) : m_view(view) {}

    QWidget *view() const { return m_view; }

private:
    QPointer<QWidget> m_view;
};

} // namespace lumora
