// SPDX-License-Identifier: MIT
#pragma once

#include "GalleryPage.h"

namespace lumora::gallery
{

/// Every control as it looks when keys go to it. Only one control of a window has the focus, so these are pictures.
class FocusPage final : public GalleryPage
{
    Q_OBJECT
public:
    explicit FocusPage(QWidget *parent = nullptr);
};

} // namespace lumora::gallery
