// SPDX-License-Identifier: MIT
// A window filled with one color, for a pipette to find: color_window '#336699'.
#include <QGuiApplication>
#include <QRasterWindow>

#include <QPainter>

namespace
{

class ColorWindow final : public QRasterWindow
{
public:
    explicit ColorWindow(const QColor &color) : m_color(color) { resize(200, 200); }

protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).fillRect(QRect(QPoint(), size()), m_color); }

private:
    QColor m_color;
};

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    ColorWindow window(QColor(QGuiApplication::arguments().value(1)));
    window.show();
    return QGuiApplication::exec();
}
