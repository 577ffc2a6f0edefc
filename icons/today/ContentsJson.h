// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace lumora
{

inline constexpr char contentsName[] = "Contents.json";

/// The object as a file of an asset catalogue, with the block of information that each of them ends with.
QByteArray contentsJson(QJsonObject content);

/// A size as catalogues write it: "60x60", "83.5x83.5" for 600 and 835 tenths of a point.
QString slotSize(int tenths);

} // namespace lumora
