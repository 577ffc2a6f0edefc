// SPDX-License-Identifier: MIT
#pragma once

#include "GalleryPage.h"

namespace lumora::gallery
{

/// Pictures of windows' title bars. Only one window at a time can be the active one, so each is shown out of sight,
/// made active where its look wants that, and photographed.
class TitleBarPage final : public GalleryPage
{
    Q_OBJECT
public:
    explicit TitleBarPage(QWidget *parent = nullptr);

private:
    void showPictures();
};

} // namespace lumora::gallery
