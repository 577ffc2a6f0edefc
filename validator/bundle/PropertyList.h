// SPDX-License-Identifier: MIT
#pragma once

#include "BinaryPlistBounds.h"

#include <QByteArray>
#include <QVariantMap>

#include <optional>

namespace lumora
{

/// The dictionary of a property list in XML (UTF-8 or UTF-16) or binary form: texts as QString, whole numbers as
/// qlonglong, reals as double, booleans as bool, data as QByteArray, dates as QDateTime, arrays and dictionaries as
/// QVariantList and QVariantMap. Empty when the bytes are damaged, contain another kind of value, or exceed the limits.
std::optional<QVariantMap> propertyListDictionary(const QByteArray &bytes, const PropertyListLimits &limits = {});

} // namespace lumora
