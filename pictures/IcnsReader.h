// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace lumora
{

/// The largest picture of a Mac icon file as a file of its own (PNG); empty where the container is damaged or holds
/// none in that form. Legacy members with run-length packed planes, 128 pixels at most, are passed over.
QByteArray largestIcnsPicture(const QByteArray &bytes);

} // namespace lumora
