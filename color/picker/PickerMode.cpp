// SPDX-License-Identifier: MIT
#include "PickerMode.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace lumora
{

QList<PickerModeItem> pickerModes()
{
    return {
        {PickerMode::Wheel, u"wheel"_s, u"picker_wheel"_s, qtTrId("COLOR_MODE_WHEEL")},
        {PickerMode::Sliders, u"sliders"_s, u"picker_sliders"_s, qtTrId("COLOR_MODE_SLIDERS")},
        {PickerMode::Palettes, u"palettes"_s, u"picker_palettes"_s, qtTrId("COLOR_MODE_PALETTE")},
        {PickerMode::Recent, u"recent"_s, u"picker_recent"_s, qtTrId("COLOR_MODE_RECENT")},
    };
}

} // namespace lumora
