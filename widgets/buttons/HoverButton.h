// SPDX-License-Identifier: MIT
#pragma once

#include "FilledButton.h"

namespace lumora
{

/// A filled button with bold text and two colors: one at rest, one under the pointer.
class HoverButton final : public FilledButton
{
    Q_OBJECT
    Q_PROPERTY(QColor hovercolor READ hovercolor WRITE setHovercolor)
public:
    explicit HoverButton(QWidget *parent = nullptr);

    QColor hovercolor() const { return m_hovercolor; }
    /// Shows the next time the pointer enters the button.
    void setHovercolor(const QColor &color) { m_hovercolor = color; }

protected:
    QColor colorUnderPointer() const override { return m_hovercolor; }
    QColor colorPressed() const override { return m_hovercolor; }

private:
    QColor m_hovercolor;
};

} // namespace lumora
