// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QStringView>

#include <optional>

namespace lumora
{

/// The custom size in a text such as "300x200". Each number is read as in the size fields: "300px x 200" is 300 x 200.
/// Empty if there is no x between two numbers or an edge is out of range.
std::optional<QSize> typedPlaceholderSize(QStringView text);

} // namespace lumora
