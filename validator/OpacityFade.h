// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/style/EasedAnimation.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

namespace lumora
{

/// How opaque a view of a pane is, 0 to 1. At 0 it is hidden, so that neither pointer nor keys nor screen readers find
/// it, and keeps its place; at 1 nothing stands between it and the screen.
qreal opacity(const QWidget *view);
void setOpacity(QWidget *view, qreal opacity);

/// Fades several views at once, as one group. A view that is faded again, or whose opacity is set while it fades, ends
/// where it was told last.
class OpacityFade final : public QObject
{
    Q_OBJECT

public:
    static constexpr int duration = 300; ///< milliseconds

    explicit OpacityFade(QObject *parent = nullptr);

    void fade(const QList<QWidget *> &views, qreal to);
    /// Puts every view where its fade was to end.
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
