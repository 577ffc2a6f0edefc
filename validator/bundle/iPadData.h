// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QSize>

namespace lumora
{

/// The artwork that an iPad app needs, in pixels, from Apple's human interface guidelines for iOS 6 and 7.
class iPadData
{
public:
    /// The edge lengths of the square icons of an iPad app.
    QList<int> icons() const { return {72, 144, 76, 152, 29, 58, 40, 80, 50, 100, 512, 1024}; }

    /// The additional edge lengths for an iPhone app that also runs on the iPad.
    QList<int> universalIcons() const { return {72, 144, 76, 152}; }

    /// Launch images.
    QList<QSize> defaults() const
    {
        return {{768, 1004}, {1024, 748}, {1536, 2008}, {2048, 1496},
                {768, 1024}, {1024, 768}, {1536, 2048}, {2048, 1536}};
    }
};

} // namespace lumora
