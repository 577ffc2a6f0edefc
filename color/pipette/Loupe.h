// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QImage>
#include <QRect>
#include <QWidget>

namespace lumora
{

/// Shows the pixels around the pointer, enlarged, and the code of the one below it. Stays beside the pointer, on its
/// screen, and takes neither pointer nor keyboard.
class Loupe final : public QWidget
{
    Q_OBJECT

public:
    /// Pixels shown in each direction; odd, so that one is in the middle.
    static constexpr int pixelsAcross = 11;
    /// Between the pointer and the loupe; points. Keeps the loupe out of what it shows.
    static constexpr int distance = 24;

    explicit Loupe(QWidget *parent = nullptr);

    const QString &code() const { return m_code; }

    /// `pixels` is square, `pixelsAcross` wide, with the pointer's pixel in the middle.
    void showPixels(const QImage &pixels, const QPoint &pointer, const QRect &screen);

    /// Below and right of the pointer; on the other side where the screen ends.
    static QPoint placeBeside(const QPoint &pointer, const QSize &size, const QRect &screen);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QFont m_font;
    QImage m_pixels;
    QString m_code;
};

} // namespace lumora
