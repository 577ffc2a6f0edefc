// SPDX-License-Identifier: MIT
#include "PlatformNames.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

const QString allPlatforms = u"all"_s;

} // namespace

QStringList classicPlatformNames()
{
    QStringList names;
    for (const PlatformIcons &platform : iconPlatforms)
        names << QString::fromLatin1(platform.commandName);
    return names << allPlatforms;
}

QList<IconPlatform> classicPlatformsNamed(const QStringList &names)
{
    QList<IconPlatform> chosen;
    for (const PlatformIcons &platform : iconPlatforms) {
        if (names.contains(allPlatforms) || names.contains(QLatin1StringView(platform.commandName)))
            chosen << platform.platform;
    }
    return chosen;
}

} // namespace lumora
