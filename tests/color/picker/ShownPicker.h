// SPDX-License-Identifier: MIT
#pragma once

#include "color/ColorCode.h"
#include "color/picker/ChannelRow.h"
#include "color/picker/PickerContent.h"
#include "color/picker/PickerModel.h"
#include "color/picker/PickerPages.h"
#include "color/pipette/Pipette.h"

#include <QAccessible>

#include <memory>

namespace lumora
{

/// Ends each pick as the test sets it.
class FakePipette final : public Pipette
{
public:
    void pick(QWidget *) override { ++picks; }
    int picks = 0;
};

/// The picker without a host, shown at its usual size, with a pipette that only counts.
class ShownPicker
{
public:
    ShownPicker()
    {
        auto fake = std::make_unique<FakePipette>();
        pipette = fake.get();
        content.setPipette(std::move(fake));
        content.resize(250, 366);
        content.show();
    }

    ColorWheel *wheel() { return static_cast<WheelPage *>(content.page(PickerMode::Wheel))->wheel(); }
    PalettesPage *palettes() { return static_cast<PalettesPage *>(content.page(PickerMode::Palettes)); }
    ChannelRow *row(ColorChannel channel)
    {
        for (ChannelRow *row : content.page(PickerMode::Sliders)->findChildren<ChannelRow *>()) {
            if (row->channel() == channel)
                return row;
        }
        return nullptr;
    }
    QString code() const { return stringFromColor(model.color()); }
    static QAccessibleValueInterface *valueOf(QWidget *widget)
    {
        return QAccessible::queryAccessibleInterface(widget)->valueInterface();
    }

    PickerModel model;
    PickerContent content{&model};
    FakePipette *pipette = nullptr;
};

} // namespace lumora
