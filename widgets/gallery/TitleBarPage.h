// SPDX-License-Identifier: MIT
#pragma once

#include "GalleryPage.h"

namespace lumora::gallery
{

/// Pictures of title bars. Only one window at a time can be active, so each is shown off screen, made active if its
/// look needs that, and captured.
class TitleBarPage final : public GalleryPage
{
    Q_OBJECT
public:
    explicit TitleBarPage(QWidget *parent = nullptr);

private:
    void showPictures();
};

} // namespace lumora::gallery
