// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace lumora
{

/// A rounded area that groups controls inside a tool's pane; controls that messages point at sit directly on one.
class Panel final : public QWidget
{
    Q_OBJECT

public:
    static constexpr int cornerRadius = 8;

    explicit Panel(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace lumora
