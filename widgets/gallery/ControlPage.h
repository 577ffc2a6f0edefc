// SPDX-License-Identifier: MIT
#pragma once

#include "GalleryPage.h"

#include <functional>

namespace lumora::gallery
{

/// Every control that answers to the pointer and the keyboard, in every state that they put it in.
class ControlPage final : public GalleryPage
{
    Q_OBJECT
public:
    explicit ControlPage(QWidget *parent = nullptr);

    /// Of the button that opens a popover.
    static constexpr auto popoverAnchorName = "popoverAnchor";

private:
    /// One of the kind in each state.
    void addStates(const QString &title, const std::function<QWidget *()> &make);
    void showStates();

    QList<QWidget *> m_underPointer;
    QList<QWidget *> m_held;
    QList<QWidget *> m_clicked;
    QList<QWidget *> m_focused;
};

} // namespace lumora::gallery
