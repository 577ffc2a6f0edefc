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
    int count = 0; ///< how many of the numbers are given

    constexpr int major() const { return numbers[0]; }
    bool operator==(const OsVersion &) const = default;
};

/// Compared as far as both are given: 27 and 27.1 are equivalent, 15.8.8 comes after 15.8.7.
std::weak_ordering comparedVersions(const OsVersion &one, const OsVersion &other);

/// "12.5.8". None where the text is no version: one to three numbers below 1000 with dots between.
std::optional<OsVersion> osVersion(QStringView text);

QString versionText(const OsVersion &version);

} // namespace lumora
