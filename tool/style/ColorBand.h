// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QWidget>

namespace lumora
{

/// An area of one color: the header band, the borders, the rules inside popups.
class ColorBand final : public QWidget
{
    Q_OBJECT

public:
    explicit ColorBand(QWidget *parent = nullptr);

    QColor backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_backgroundColor = Qt::transparent;
};

} // namespace lumora
