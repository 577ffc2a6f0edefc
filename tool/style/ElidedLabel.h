// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace lumora
{

/// One line of plain text. If it is too long for the label, its middle is left out; the tool tip and the accessible
/// name then have the whole text. Never makes its layout wider.
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
