// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QLineEdit>

#include <optional>

namespace lumora
{

/// The color of "#rgb", "#rrggbb", "#rrggbbaa", each also without "#", or of a name such as "tomato".
std::optional<QColor> colorFromText(const QString &text);

/// A field for a color's code or name, which shows the color at its end. A text that is no color is marked and changes
/// nothing.
class ColorEntry final : public QLineEdit
{
    Q_OBJECT

public:
    explicit ColorEntry(const QColor &color, QWidget *parent = nullptr);

    const QColor &color() const { return m_color; }
    bool isRefused() const { return m_isRefused; }

signals:
    void changed();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void read();

    QColor m_color;
    bool m_isRefused = false;
};

} // namespace lumora
