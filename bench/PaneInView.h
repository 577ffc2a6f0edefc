// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

#include <utility>

/// A pane that is shown and drawn, in the smallest size of the window.
template <typename Pane> struct PaneInView
{
    template <typename... Arguments>
    explicit PaneInView(Arguments &&...arguments) : pane(std::forward<Arguments>(arguments)...)
    {
        pane.resize(835, 600);
        pane.show();
        QCoreApplication::processEvents();
    }

    Pane pane;
};
