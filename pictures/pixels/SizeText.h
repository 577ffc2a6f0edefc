// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/FailureDetail.h"

#include <QSize>
#include <QString>

namespace lumora
{

/// A picture's size as the evidence of a rule states it: "640 x 480 pixels".
QString pixelsText(QSize size);

/// The same for a failure, in the user's language.
FailureDetail pixelsDetail(QSize size);

} // namespace lumora
