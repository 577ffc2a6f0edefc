// SPDX-License-Identifier: MIT
#include "EasedAnimation.h"

namespace lumora
{

EasedAnimation::EasedAnimation(QObject *parent, int duration) : QVariantAnimation(parent)
{
    setDuration(duration);
    setEasingCurve(easeInEaseOut());
}

void EasedAnimation::run(const QVariant &from, const QVariant &to)
{
    stop();
    setStartValue(from);
    setEndValue(to);
    start();
}

QVariant EasedAnimation::interpolated(const QVariant &from, const QVariant &to, qreal progress) const
{
    // The platform's curve ends at a value slightly beside the target.
    return currentTime() >= duration() ? to : QVariantAnimation::interpolated(from, to, progress);
}

} // namespace lumora
