// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QByteArray>
#include <QImage>
#include <QString>

namespace lumora
{

/// The picture at `path` as source icon: any readable picture of exactly 1024 x 1024 pixels, whatever its resolution.
/// Another size is refused (`WrongSize`) before anything is decoded.
Result<QImage> readIconSource(const QString &path);

/// The same from bytes; `name` is the subject of a failure.
Result<QImage> readIconSource(const QByteArray &bytes, const QString &name);

/// The built-in picture "icon_for_test", the source until another is chosen. `NotFound` if the program was built
/// without it.
Result<QImage> builtInIcon();

} // namespace lumora
