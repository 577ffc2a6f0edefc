// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/FailureDetail.h"

#include <QSize>
#include <QString>

namespace lumora
{

/// A picture's size: "640 x 480 pixels" in the user's language.
FailureDetail pixelsDetail(QSize size);

/// A size that is not the wanted one: "640 x 480 pixels, not 1024 x 1024 pixels".
FailureDetail pixelsDetail(QSize size, QSize wanted);

} // namespace lumora
