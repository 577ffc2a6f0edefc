// SPDX-License-Identifier: MIT
#pragma once

#include "AnimationTiming.h"

#include <QVariantAnimation>

namespace lumora
{

/// Takes a value from one end to another, slow at both ends, and ends exactly on its target.
class EasedAnimation final : public QVariantAnimation
{
    Q_OBJECT

public:
    /// The duration is in milliseconds.
    explicit EasedAnimation(QObject *parent = nullptr, int duration = shortAnimationDuration);

    /// Starts over from the one value to the other.
    void run(const QVariant &from, const QVariant &to);

protected:
    QVariant interpolated(const QVariant &from, const QVariant &to, qreal progress) const override;
};

} // namespace lumora
