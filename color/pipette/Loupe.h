// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QImage>
#include <QRect>
#include <QWidget>

namespace lumora
{

/// Shows the enlarged pixels around the pointer, and the code of the pixel below it. Stays beside the pointer, on the
/// same screen, and takes neither pointer nor keyboard.
class Loupe final : public QWidget
{
    Q_OBJECT

public:
    /// The number of pixels shown in each direction; odd, so that one is in the middle.
    static constexpr int pixelsAcross = 11;
    /// The distance from the pointer to the loupe, in points. Keeps the loupe outside the part that it shows.
    static constexpr int distance = 24;

    explicit Loupe(QWidget *parent = nullptr);

    const QString &code() const { return m_code; }

    /// `pixels` is square, `pixelsAcross` wide, with the pointer's pixel in the middle.
    void showPixels(const QImage &pixels, const QPoint &pointer, const QRect &screen);

    /// The place below and right of the pointer, or on the other side at the screen's edge.
    static QPoint placeBeside(const QPoint &pointer, const QSize &size, const QRect &screen);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QFont m_font;
    QImage m_pixels;
    QString m_code;
};

} // namespace lumora
