// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace lumora
{

/// One line of plain text, its middle left out where it is too long for the label; the whole of it is its tool tip then
/// and what screen readers say. Never makes its layout wider.
class ElidedLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace lumora
