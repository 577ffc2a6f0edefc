// SPDX-License-Identifier: MIT
#pragma once

#include "GalleryPage.h"

namespace lumora::gallery
{

/// The buttons of a title bar in every state, and the popover's balloon at all twelve positions.
class WindowPage final : public GalleryPage
{
    Q_OBJECT
public:
    explicit WindowPage(QWidget *parent = nullptr);
};

} // namespace lumora::gallery
