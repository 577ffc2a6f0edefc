// SPDX-License-Identifier: MIT
// usage: lumora_render_icon PICTURE.svg SIZE OUT.png Draws the application's icon in the sizes of the icon theme, for
// desktops without an SVG reader.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 4) {
        std::fputs("usage: lumora_render_icon PICTURE.svg SIZE OUT.png\n", stderr);
        return 2;
    }
    QSvgRenderer renderer(arguments.at(1));
    const int size = arguments.at(2).toInt();
    if (!renderer.isValid() || size < 1 || size > 1024) {
        std::fputs("lumora_render_icon: no such picture or size\n", stderr);
        return 1;
    }
    // Small sizes are drawn large and averaged: the painter's own antialiasing is exact only if a single edge crosses a
    // pixel.
    const int drawn = size < 128 ? size * 8 : size;
    QImage image(drawn, drawn, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        renderer.render(&painter);
    }
    image = image.scaled(size, size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return image.save(arguments.at(3), "PNG") ? 0 : 1;
}
