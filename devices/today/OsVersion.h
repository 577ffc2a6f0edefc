// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <compare>
#include <optional>

namespace lumora
{

/// A version of iOS or iPadOS, of one to three numbers.
struct OsVersion
{
    std::array<int, 3> numbers{};
    int count = 0; ///< the number of given numbers

    constexpr int major() const { return numbers[0]; }
    bool operator==(const OsVersion &) const = default;
};

/// Compares only the numbers that both have: 27 and 27.1 are equivalent, 15.8.8 comes after 15.8.7.
std::weak_ordering comparedVersions(const OsVersion &one, const OsVersion &other);

/// Reads "12.5.8": one to three numbers below 1000 with dots between. Empty if the text is no version.
std::optional<OsVersion> osVersion(QStringView text);

QString versionText(const OsVersion &version);

} // namespace lumora
