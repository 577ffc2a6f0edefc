// SPDX-License-Identifier: MIT
#include "FadingView.h"

namespace lumora
{

FadingView::FadingView(QWidget *parent) : QWidget(parent)
{
    connect(&m_fade, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &value) { setAlphaValue(value.toFloat()); });
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
    m_fade.run(m_alphaValue, alpha);
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
