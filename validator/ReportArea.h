// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/style/KeyboardFocus.h"

#include <QScrollArea>

namespace lumora
{

/// The scroll area of a report. Takes the keyboard for scrolling, and shows it by a ring.
class ReportArea final : public QScrollArea
{
    Q_OBJECT

public:
    explicit ReportArea(QWidget *parent = nullptr);

protected:
    bool event(QEvent *event) override;

private:
    KeyboardFocus m_keyboardFocus;
};

} // namespace lumora
