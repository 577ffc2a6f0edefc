// SPDX-License-Identifier: MIT
#pragma once

#include "SelectionButton.h"

namespace lumora
{

/// A radio button. The owner of the buttons sets `active` on each of them; the arrow keys take the radio buttons of one
/// parent as one group.
class RadioButton final : public SelectionButton
{
    Q_OBJECT
public:
    explicit RadioButton(QWidget *parent = nullptr);

protected:
    /// An arrow key moves on to the next button of the group and chooses it, as on every desktop.
    void keyPressEvent(QKeyEvent *event) override;

private:
    void moveOn(int step);
};

} // namespace lumora
