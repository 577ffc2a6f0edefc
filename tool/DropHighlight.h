// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QWidget>

namespace lumora
{

class DropView;

/// The drop area's visible side: a dashed outline at rest, a filled one in the tool's color while a drag that will be
/// taken is over it. Lies behind everything else on its drop view and follows its size.
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
