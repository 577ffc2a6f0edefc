// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace lumora
{

/// The metrics of an unchanged title bar, in points.
struct StandardTitleBar
{
    qreal height;
    qreal trafficLightButtonsLeftMargin;
    qreal trafficLightSeparation;
    qreal fullScreenButtonRightMargin;
};

/// Measured from the platform's style when the first window asks, the same for all windows after it. Needs a
/// QApplication.
const StandardTitleBar &standardTitleBar();

} // namespace lumora
