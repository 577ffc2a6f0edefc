// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QWidget>

namespace lumora
{

class DropView;

/// The visible part of a drop area, filled with the tool's color while a drag that will be accepted is over it.
class DropHighlight final : public QWidget
{
    Q_OBJECT

public:
    /// A dashed outline at rest, behind everything else on the drop view, which owns it.
    DropHighlight(DropView *dropView, const QColor &color);
    /// Nothing at rest, above everything else on the widget, which owns it: for what takes a drop after the area's
    /// first one.
    DropHighlight(DropView *dropView, const QColor &color, QWidget *above);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    DropView *m_dropView;
    bool m_isOutlined;
    QColor m_color;
};

} // namespace lumora
