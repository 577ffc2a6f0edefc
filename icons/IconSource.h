// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QByteArray>
#include <QImage>
#include <QString>

namespace lumora
{

/// The picture at `path` if it may serve as source icon: any readable picture that stores exactly 1024 x 1024 pixels,
/// whatever its resolution. Another size is refused (`WrongSize`) before anything is decoded.
Result<QImage> readIconSource(const QString &path);

/// The same from bytes; `name` is what a failure calls them.
Result<QImage> readIconSource(const QByteArray &bytes, const QString &name);

/// The built-in picture "icon_for_test", which is the source until another is chosen; null if the program was built
/// without it.
QImage builtInIcon();

} // namespace lumora
