// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QVariantMap>

#include <optional>

namespace lumora
{

/// The dictionary of entitlements in the form that newer systems read: texts as QString, whole numbers as qlonglong,
/// booleans, arrays and dictionaries as in a property list. Empty when the bytes are not such a dictionary.
std::optional<QVariantMap> entitlementsFromDer(QByteArrayView der);

} // namespace lumora
