// SPDX-License-Identifier: MIT
#include "PressAnimation.h"

#include <QWidget>

namespace lumora
{

namespace
{

constexpr int durationInMilliseconds = 250;

} // namespace

PressAnimation::PressAnimation(QWidget *button) : QVariantAnimation(button)
{
    setDuration(durationInMilliseconds);
}

void PressAnimation::touchIn()
{
    play({0.95, 0.9, 0.95});
}

void PressAnimation::touchOut()
{
    play({0.95, 1.05, 1.0});
}

void PressAnimation::finish()
{
    if (state() != Stopped)
        setCurrentTime(duration());
}

qreal PressAnimation::scale() const
{
    const QVariant value = currentValue();
    return value.isValid() ? value.toReal() : 1.0;
}

void PressAnimation::play(const KeyFrames &frames)
{
    stop();
    setKeyValues({{0.0, frames.begin}, {0.5, frames.middle}, {1.0, frames.end}});
    start();
    const auto *button = qobject_cast<QWidget *>(parent());
    if (button == nullptr || !button->isVisible())
        finish();
}

} // namespace lumora
