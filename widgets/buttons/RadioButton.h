// SPDX-License-Identifier: MIT
#pragma once

#include "SelectionButton.h"

namespace lumora
{

/// A radio button. It knows no group: the owner of the buttons sets `active` on each of them.
class RadioButton final : public SelectionButton
{
    Q_OBJECT
public:
    explicit RadioButton(QWidget *parent = nullptr);
};

} // namespace lumora
