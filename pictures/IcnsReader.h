// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace lumora
{

/// The PNG file of the largest picture in a Mac icon file; empty where the container is damaged or holds no PNG. Legacy
/// members with run-length packed planes, 128 pixels at most, are skipped.
QByteArray largestIcnsPicture(const QByteArray &bytes);

} // namespace lumora
