// SPDX-License-Identifier: MIT
#include "OpacityFade.h"

#include <QGraphicsOpacityEffect>

namespace lumora
{

qreal opacity(const QWidget *view)
{
    if (view->isHidden())
        return 0;
    const auto *effect = qobject_cast<QGraphicsOpacityEffect *>(view->graphicsEffect());
    return effect == nullptr ? 1 : effect->opacity();
}

void setOpacity(QWidget *view, qreal opacity)
{
    auto *effect = qobject_cast<QGraphicsOpacityEffect *>(view->graphicsEffect());
    if (opacity > 0 && opacity < 1) {
        if (effect == nullptr) {
            effect = new QGraphicsOpacityEffect;
            view->setGraphicsEffect(effect);
        }
        effect->setOpacity(opacity);
    } else if (effect != nullptr) {
        view->setGraphicsEffect(nullptr);
    }
    QSizePolicy policy = view->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    view->setSizePolicy(policy);
    view->setVisible(opacity > 0);
}

OpacityFade::OpacityFade(QObject *parent) : QObject(parent)
{
    connect(&m_animation, &QVariantAnimation::valueChanged, this, &OpacityFade::advance);
}

void OpacityFade::fade(const QList<QWidget *> &views, qreal to)
{
    // Views that are still fading continue from their current opacity, together with the new ones.
    for (Step &step : m_steps) {
        if (step.view)
            step.from = opacity(step.view);
    }
    for (QWidget *view : views) {
        m_steps.removeIf([view](const Step &step) { return step.view == view || !step.view; });
        m_steps += {view, opacity(view), to};
    }
    m_animation.run(0.0, 1.0);
}

void OpacityFade::finish()
{
    m_animation.stop();
    advance(1.0);
}

void OpacityFade::advance(const QVariant &progress)
{
    const double done = progress.toDouble();
    for (const Step &step : std::as_const(m_steps)) {
        if (step.view)
            setOpacity(step.view, step.from + (step.to - step.from) * done);
    }
    if (done >= 1)
        m_steps.clear();
}

} // namespace lumora
