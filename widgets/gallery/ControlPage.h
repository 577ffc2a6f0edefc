// SPDX-License-Identifier: MIT
#pragma once

#include "GalleryPage.h"

#include <functional>

namespace lumora::gallery
{

/// Every control that reacts to the pointer and the keyboard, in each of its states.
class ControlPage final : public GalleryPage
{
    Q_OBJECT
public:
    explicit ControlPage(QWidget *parent = nullptr);

    /// The object name of the button that opens a popover.
    static constexpr auto popoverAnchorName = "popoverAnchor";

private:
    /// One control of the kind in each state.
    void addStates(const QString &title, const std::function<QWidget *()> &make);
    void showStates();

    QList<QWidget *> m_underPointer;
    QList<QWidget *> m_held;
    QList<QWidget *> m_clicked;
    QList<QWidget *> m_focused;
};

} // namespace lumora::gallery
