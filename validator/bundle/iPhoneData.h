// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QSize>

namespace lumora
{

/// The artwork that an iPhone app needs, in pixels, from Apple's human interface guidelines for iOS 6 and 7.
class iPhoneData
{
public:
    /// Edge lengths of the square icons.
    QList<int> icons() const { return {57, 114, 60, 120, 29, 58, 40, 80, 512, 1024}; }

    /// Launch images.
    QList<QSize> defaults() const { return {{640, 960}, {960, 640}, {640, 1136}, {1136, 640}, {320, 480}, {480, 320}}; }
};

} // namespace lumora
