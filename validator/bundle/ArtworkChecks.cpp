// SPDX-License-Identifier: MIT
#include "ArtworkChecks.h"

#include "iPadData.h"
#include "iPhoneData.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace lumora
{

QList<int> requiredIcons(PlatformType platform)
{
    switch (platform) {
    case PlatformType::Phone:
        return iPhoneData().icons();
    case PlatformType::Pad:
        return iPadData().icons();
    case PlatformType::Universal:
        return iPhoneData().icons() + iPadData().universalIcons();
    case PlatformType::None:
        break;
    }
    return {};
}

QList<QSize> requiredLaunchImages(PlatformType platform)
{
    switch (platform) {
    case PlatformType::Phone:
        return iPhoneData().defaults();
    case PlatformType::Pad:
        return iPadData().defaults();
    case PlatformType::Universal:
        return iPhoneData().defaults() + iPadData().defaults();
    case PlatformType::None:
        break;
    }
    return {};
}

QStringList iconCandidates(const QStringList &images)
{
    QStringList candidates;
    std::copy_if(images.begin(), images.end(), std::back_inserter(candidates), [](const QString &name) {
        return name.contains(u"icon") || name.contains(u"Icon") || name.contains(u"iTunesArtwork");
    });
    return candidates;
}

QStringList launchImageCandidates(const QStringList &images)
{
    QStringList candidates;
    std::copy_if(images.begin(), images.end(), std::back_inserter(candidates),
                 [](const QString &name) { return name.contains(u"default") || name.contains(u"Default"); });
    return candidates;
}

QList<int> missingIcons(PlatformType platform, const QList<QSize> &candidateSizes)
{
    QList<int> missing = requiredIcons(platform);
    missing.removeIf([&candidateSizes](int edge) { return candidateSizes.contains(QSize(edge, edge)); });
    return missing;
}

QList<QSize> missingLaunchImages(PlatformType platform, const QList<QSize> &candidateSizes)
{
    const QList<QSize> required = requiredLaunchImages(platform);
    const bool anyFound = std::any_of(required.begin(), required.end(),
                                      [&candidateSizes](QSize size) { return candidateSizes.contains(size); });
    return anyFound ? QList<QSize>() : required;
}

QString sizeText(QSize size)
{
    return u"%1x%2"_s.arg(size.width()).arg(size.height());
}

QStringList sizeTexts(const QList<QSize> &sizes)
{
    QStringList texts;
    for (const QSize size : sizes)
        texts += sizeText(size);
    return texts;
}

QStringList squareTexts(const QList<int> &edges)
{
    QStringList texts;
    for (const int edge : edges)
        texts += sizeText(QSize(edge, edge));
    return texts;
}

} // namespace lumora
