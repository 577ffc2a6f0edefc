// SPDX-License-Identifier: MIT
#pragma once

#include "PaintedButton.h"

namespace lumora
{

/// One choice of a SegmentedControl. It is checked while it is the choice in effect; its owner decides that.
class Segment final : public PaintedButton
{
    Q_OBJECT

public:
    /// Where the segment is in its row; the outer ends are rounded. In a right-to-left row the first is at the right.
    struct Ends
    {
        bool isFirst = false;
        bool isLast = false;
    };

    explicit Segment(const QString &text, Ends ends, QWidget *parent = nullptr);

    bool isActive() const override { return isChecked(); }
    void setActive(bool active);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// An arrow key was pressed; -1 is towards the first segment.
    void moved(int step);

protected:
    void nextCheckState() override {}
    void keyPressEvent(QKeyEvent *event) override;
    void drawRect(QPainter &painter) override;
    void drawFocusRing(QPainter &painter) override;

private:
    QRectF shape(qreal inset) const;
    QPainterPath outline(qreal inset) const;

    Ends m_ends;
    QFont m_font;
};

} // namespace lumora
