// SPDX-License-Identifier: MIT
#include "OsVersion.h"

#include <QStringList>

#include <algorithm>

namespace lumora
{

std::weak_ordering comparedVersions(const OsVersion &one, const OsVersion &other)
{
    const int both = std::min(one.count, other.count);
    for (std::size_t index = 0; index < static_cast<std::size_t>(both); ++index) {
        if (one.numbers[index] != other.numbers[index])
            return one.numbers[index] <=> other.numbers[index];
    }
    return std::weak_ordering::equivalent;
}

std::optional<OsVersion> osVersion(QStringView text)
{
    constexpr qsizetype mostDigits = 3;
    const QList<QStringView> parts = text.split(u'.');
    OsVersion version;
    if (parts.size() > static_cast<qsizetype>(version.numbers.size()))
        return std::nullopt;
    for (const QStringView part : parts) {
        const bool digits = std::ranges::all_of(part, [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
        if (part.isEmpty() || part.size() > mostDigits || !digits)
            return std::nullopt;
        version.numbers[static_cast<std::size_t>(version.count++)] = part.toInt();
    }
    return version;
}

QString versionText(const OsVersion &version)
{
    QStringList numbers;
    for (std::size_t index = 0; index < static_cast<std::size_t>(version.count); ++index)
        numbers << QString::number(version.numbers[index]);
    return numbers.join(u'.');
}

} // namespace lumora
