// SPDX-License-Identifier: MIT
#include "RetinaName.h"

#include <array>
#include <cmath>

namespace lumora
{

namespace
{

constexpr std::array markers = {QLatin1StringView("@2x"), QLatin1StringView("@2X"), QLatin1StringView("-hd"),
                                QLatin1StringView("-HD")};

QString lastComponent(const QString &path)
{
    return path.section(u'/', -1, -1, QString::SectionSkipEmpty);
}

/// The part after the last dot of the name; a name whose only dot is its first character has no extension.
QString extension(const QString &name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.sliced(dot + 1) : QString();
}

int half(int pixels)
{
    // A separator one pixel wide stays one pixel wide, since zero pixels are no picture.
    return pixels == 1 ? 1 : static_cast<int>(std::floor(static_cast<float>(pixels) * 0.5F));
}

} // namespace

bool isDoubleResolution(const QString &path)
{
    const bool marked = std::any_of(markers.begin(), markers.end(),
                                    [&path](QLatin1StringView marker) { return path.contains(marker); });
    return marked && extension(lastComponent(path)) == QLatin1StringView("png");
}

QString singleResolutionName(const QString &path)
{
    QString name = lastComponent(path);
    for (const QLatin1StringView marker : markers)
        name.remove(marker);
    return name;
}

QSize halfSize(QSize pixels)
{
    return {half(pixels.width()), half(pixels.height())};
}

} // namespace lumora
