// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/buttons/HoverButton.h"
#include "widgets/buttons/IconButton.h"

#include <memory>

namespace lumora::testing
{

inline const QColor normal(10, 20, 30);
inline const QColor hover(40, 50, 60);
inline const QColor pressed(70, 80, 90);

/// Buttons of 180 × 36 in these three colors.
inline std::unique_ptr<IconButton> iconButton()
{
    auto button = std::make_unique<IconButton>();
    button->setNormalColor(normal);
    button->setHoverColor(hover);
    button->setActiveColor(pressed);
    button->resize(180, 36);
    return button;
}

inline std::unique_ptr<HoverButton> hoverButton()
{
    auto button = std::make_unique<HoverButton>();
    button->setNormalColor(normal);
    button->setHovercolor(hover);
    button->resize(180, 36);
    return button;
}

} // namespace lumora::testing
