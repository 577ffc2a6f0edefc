// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QWidget>

namespace lumora
{

class DropView;

/// The visible part of a drop area: a dashed outline at rest, filled with the tool's color while a drag that will be
/// accepted is over it. It is behind everything else on its drop view and has the same size.
class DropHighlight final : public QWidget
{
    Q_OBJECT

public:
    /// The drop view is parent and owner.
    DropHighlight(DropView *dropView, const QColor &color);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    DropView *m_dropView;
    QColor m_color;
};

} // namespace lumora
