// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/style/EasedAnimation.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

namespace lumora
{

/// Sets the opacity of a pane's view, 0 to 1. At 0 it is hidden, so that pointer, keys and screen readers cannot reach
/// it, and keeps its place; at 1 it has no effect.
qreal opacity(const QWidget *view);
void setOpacity(QWidget *view, qreal opacity);

/// Fades several views at once, as one group. If a view is faded again, or its opacity is set while it fades, the last
/// value counts.
class OpacityFade final : public QObject
{
    Q_OBJECT

public:
    static constexpr int duration = 300; ///< milliseconds

    explicit OpacityFade(QObject *parent = nullptr);

    void fade(const QList<QWidget *> &views, qreal to);
    /// Sets every view to the end of its fade.
    void finish();

private:
    struct Step
    {
        QPointer<QWidget> view;
        qreal from = 0;
        qreal to = 0;
    };

    void advance(const QVariant &progress);

    QList<Step> m_steps;
    EasedAnimation m_animation{nullptr, duration};
};

} // namespace lumora
