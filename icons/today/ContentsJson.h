// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace lumora
{

inline constexpr char contentsName[] = "Contents.json";

/// The object as a file of an asset catalogue, with the "info" block at its end.
QByteArray contentsJson(QJsonObject content);

/// A size as catalogues write it: "60x60" for 600 tenths of a point, "83.5x83.5" for 835.
QString slotSize(int tenths);

} // namespace lumora
