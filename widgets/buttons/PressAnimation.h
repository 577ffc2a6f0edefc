// SPDX-License-Identifier: MIT
#pragma once

#include <QVariantAnimation>

namespace lumora
{

/// The scale of a button's drawing: it shrinks under the pointer and springs back when the pointer leaves. Runs only
/// while the button is visible; otherwise the scale takes its final value at once. Emits valueChanged() for every new
/// scale.
class PressAnimation final : public QVariantAnimation
{
    Q_OBJECT
public:
    explicit PressAnimation(QWidget *button);

    /// Shrinks: 0.95, 0.9, 0.95 within a quarter of a second, and stays there.
    void touchIn();
    /// Springs back: 0.95, 1.05, 1.0 within a quarter of a second. Replaces a running touchIn().
    void touchOut();
    /// Jumps to the end of the running animation.
    void finish();

    /// 1 before the first animation; while none runs, the final scale of the last one.
    qreal scale() const;

private:
    struct KeyFrames
    {
        qreal begin;
        qreal middle;
        qreal end;
    };
    void play(const KeyFrames &frames);
};

} // namespace lumora
