// SPDX-License-Identifier: MIT
#pragma once

#include "GalleryPage.h"

namespace lumora::gallery
{

/// Text fields, icon tabs, progress bars and bezelled buttons.
class InputPage final : public GalleryPage
{
    Q_OBJECT
public:
    explicit InputPage(QWidget *parent = nullptr);
};

} // namespace lumora::gallery
