// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/style/EasedAnimation.h"

#include <QWidget>

namespace lumora
{

/// A view that can be faded. A new opacity costs only a repaint.
class FadingView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(float alphaValue READ alphaValue WRITE setAlphaValue)

public:
    explicit FadingView(QWidget *parent = nullptr);

    /// 0 to 1.
    float alphaValue() const { return m_alphaValue; }
    void setAlphaValue(float alpha);
    /// Fades from the current opacity to this one within a quarter of a second, also during another fade. A hidden view
    /// gets the opacity at once.
    void fadeTo(float alpha);

protected:
    void hideEvent(QHideEvent *event) override;

private:
    EasedAnimation m_fade;
    float m_alphaValue = 1.0F;
};

} // namespace lumora
