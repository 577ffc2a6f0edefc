// SPDX-License-Identifier: MIT
#include "PlaceholderSizes.h"

#include <array>

namespace lumora
{

namespace
{

constexpr std::array iosSizes = {
    QSize(1024, 1024), QSize(1136, 640), QSize(640, 1136), QSize(960, 640),  QSize(640, 960),
    QSize(480, 320),   QSize(320, 480),  QSize(1024, 768), QSize(768, 1024),
};

constexpr std::array macSizes = {QSize(1024, 1024), QSize(512, 512), QSize(1440, 900), QSize(1280, 800)};

} // namespace

std::span<const QSize> placeholderSizes(PlaceholderSet set)
{
    switch (set) {
    case PlaceholderSet::Ios:
        return iosSizes;
    case PlaceholderSet::Mac:
        return macSizes;
    }
    return {};
}

QString placeholderFileName(QSize size)
{
    return QStringLiteral("placeholder_%1x%2.png").arg(size.width()).arg(size.height());
}

} // namespace lumora
