// SPDX-License-Identifier: MIT
#pragma once

#include "AnimationTiming.h"

#include <QVariantAnimation>

namespace lumora
{

/// Animates a value from one end to the other, slow at both ends, and ends exactly on its target.
class EasedAnimation final : public QVariantAnimation
{
    Q_OBJECT

public:
    /// The duration is in milliseconds.
    explicit EasedAnimation(QObject *parent = nullptr, int duration = shortAnimationDuration);

    /// Starts again, from the first value to the second.
    void run(const QVariant &from, const QVariant &to);

protected:
    QVariant interpolated(const QVariant &from, const QVariant &to, qreal progress) const override;
};

} // namespace lumora
