// SPDX-License-Identifier: MIT
#include "FadingView.h"

#include "widgets/style/AnimationTiming.h"

namespace lumora
{

FadingView::FadingView(QWidget *parent) : QWidget(parent)
{
    m_fade.setDuration(shortAnimationDuration);
    m_fade.setEasingCurve(easeInEaseOut());
    connect(&m_fade, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &value) { setAlphaValue(value.toFloat()); });
    // The curve ends a hair beside its target.
    connect(&m_fade, &QVariantAnimation::finished, this, [this] { setAlphaValue(m_fade.endValue().toFloat()); });
}

void FadingView::setAlphaValue(float alpha)
{
    if (m_alphaValue == alpha)
        return;
    m_alphaValue = alpha;
    update();
}

void FadingView::fadeTo(float alpha)
{
    m_fade.stop();
    if (m_alphaValue == alpha)
        return;
    if (!isVisible()) {
        setAlphaValue(alpha);
        return;
    }
    m_fade.setStartValue(m_alphaValue);
    m_fade.setEndValue(alpha);
    m_fade.start();
}

void FadingView::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (m_fade.state() != QAbstractAnimation::Running)
        return;
    m_fade.stop();
    setAlphaValue(m_fade.endValue().toFloat());
}

} // namespace lumora
