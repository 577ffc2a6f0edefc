// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QByteArray>

namespace lumora
{

/// The PNG file of the largest picture in a Mac icon file. Legacy members with run-length packed planes, 128 pixels at
/// most, are skipped. Fails with `NotAPicture` if the container is damaged or holds no PNG; `name` is the subject of a
/// failure.
Result<QByteArray> largestIcnsPicture(const QByteArray &bytes, const QString &name);

} // namespace lumora
