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
    /// Fades to the opacity within a quarter of a second, from the current one, also in the middle of a fade. Out
    /// of sight it takes it at once.
    void fadeTo(float alpha);

protected:
    void hideEvent(QHideEvent *event) override;

private:
    EasedAnimation m_fade;
    float m_alphaValue = 1.0F;
};

} // namespace lumora
