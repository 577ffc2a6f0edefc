// SPDX-License-Identifier: MIT
#include "PickerModel.h"

namespace lumora
{

void PickerModel::setPicked(const PickedColor &picked)
{
    if (m_picked == picked)
        return;
    const bool newColor = m_picked.rgba != picked.rgba;
    m_picked = picked;
    emit pickedChanged();
    if (newColor)
        emit colorChanged(m_picked.rgba);
}

} // namespace lumora
