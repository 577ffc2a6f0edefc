// SPDX-License-Identifier: MIT
#pragma once

#include "GalleryPage.h"

namespace lumora::gallery
{

/// The buttons: idle, under the pointer, pressed, with the keyboard's focus, disabled.
class ButtonPage final : public GalleryPage
{
    Q_OBJECT
public:
    /// The name of the control that has room for a popover beside it.
    static constexpr const char *popoverAnchorName = "popoverAnchor";

    explicit ButtonPage(QWidget *parent = nullptr);
};

} // namespace lumora::gallery
