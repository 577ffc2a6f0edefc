// SPDX-License-Identifier: MIT
#pragma once

#include "GalleryPage.h"

namespace lumora::gallery
{

/// The progress bar at every value with a look of its own, the icons of the icon buttons, and texts that do not fit.
class ValuePage final : public GalleryPage
{
    Q_OBJECT
public:
    explicit ValuePage(QWidget *parent = nullptr);
};

} // namespace lumora::gallery
