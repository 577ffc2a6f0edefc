// SPDX-License-Identifier: MIT
#pragma once

#include "color/picking/PickedColor.h"

#include <QObject>

namespace lumora
{

/// The one color that all of the picker's controls show and change.
class PickerModel final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    const PickedColor &picked() const { return m_picked; }
    const RgbaColor &color() const { return m_picked.rgba; }
    void setColor(const RgbaColor &color) { setPicked(withColor(m_picked, color)); }
    void setPicked(const PickedColor &picked);

signals:
    /// A displayed value has changed, at least the hue of a gray.
    void pickedChanged();
    /// The color itself has changed.
    void colorChanged(const lumora::RgbaColor &color);

private:
    PickedColor m_picked{{1.0F, 1.0F, 1.0F, 1.0F}, {0.0F, 0.0F, 1.0F}};
};

} // namespace lumora
