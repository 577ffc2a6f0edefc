// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QStringView>

#include <optional>

namespace lumora
{

/// The custom size that a text such as "300x200" names, each number read as the size fields read theirs ("300px x 200"
/// is 300 x 200). None where an x between two numbers is missing or an edge is out of range.
std::optional<QSize> typedPlaceholderSize(QStringView text);

} // namespace lumora
