// SPDX-License-Identifier: MIT
#pragma once

#include "KBButtonCell.h"
#include "PaintedButton.h"

namespace lumora
{

/// A push button with a gradient bezel in the color of its type, drawn by its KBButtonCell. Part of
/// the kit's public face: the gallery and the tests use it, the program does not.
class KBButton final : public PaintedButton
{
    Q_OBJECT
    Q_PROPERTY(lumora::KBButtonType kbButtonType READ kbButtonType WRITE setKBButtonType)
public:
    explicit KBButton(QWidget *parent = nullptr);

    KBButtonType kbButtonType() const { return m_cell.kbButtonType(); }
    void setKBButtonType(KBButtonType type);
    const KBButtonCell &cell() const { return m_cell; }

    QSize sizeHint() const override;

protected:
    void drawRect(QPainter &painter) override;
    void drawFocusRing(QPainter &painter) override;

private:
    KBButtonCell m_cell;
};

} // namespace lumora
