// SPDX-License-Identifier: MIT
#include "DevicePlacement.h"

namespace lumora
{

namespace
{

constexpr int gap = 10;
constexpr int labelHeight = 20;
constexpr int pictureBottom = 25;
constexpr QSize phoneSize(35, 65);
constexpr QSize padSize(71, 90);
constexpr int miniPictureBottom = 150;
constexpr int miniLabelBottom = 125;

} // namespace

DevicePlacement placeInRow(int index)
{
    const int x = (phoneSize.width() + gap) * index;
    return {QRect(QPoint(x, pictureBottom), phoneSize), QRect(x, 0, phoneSize.width(), labelHeight)};
}

DevicePlacement placeOfiPad(const DeviceRecord &device, int index)
{
    const bool mini = isMini(device);
    const int x = (padSize.width() + gap) * (mini ? index : index - 1);
    return {QRect(QPoint(x, mini ? miniPictureBottom : pictureBottom), padSize),
            QRect(x, mini ? miniLabelBottom : 0, padSize.width(), labelHeight)};
}

} // namespace lumora
