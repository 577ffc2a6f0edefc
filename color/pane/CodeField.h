// SPDX-License-Identifier: MIT
#pragma once

#include "color/spaces/WideColor.h"

#include <QLineEdit>

namespace lumora
{

/// A field that understands a color in every form. It never changes what the user types: a text that is no color only
/// marks the field, and the color stays.
class CodeField final : public QLineEdit
{
    Q_OBJECT

public:
    explicit CodeField(QWidget *parent = nullptr);

    const WideColor &color() const { return m_color; }
    /// Shows the color, unless the text already means it.
    void setColor(const WideColor &color);
    /// Whether the text is not empty and is no color.
    bool isRefused() const { return m_isRefused; }

    QSize sizeHint() const override;

signals:
    /// The text means another color now.
    void colorTyped(const lumora::WideColor &color);
    /// The user confirmed a text that is a color.
    void colorConfirmed();
    void refusedChanged(bool isRefused);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void read();
    void confirm();
    void setRefused(bool isRefused);

    WideColor m_color;
    bool m_isRefused = false;
    bool m_setsText = false;
};

} // namespace lumora
