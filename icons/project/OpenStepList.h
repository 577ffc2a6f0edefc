// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QVariant>

#include <optional>

namespace lumora
{

/// A property list in the old style of braces and semicolons, as Xcode's projects are: dictionaries as `QVariantMap`,
/// arrays as `QVariantList`, everything else as `QString`. Nothing if it is damaged or nested too deeply.
std::optional<QVariant> readOpenStepList(const QByteArray &text);

} // namespace lumora
