// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QSizeF>
#include <QString>

class QPainter;

namespace lumora
{

/// A picture from the program's resources, fetched by its name ("icon_icons") and drawn sharp at every size and scale
/// factor. A cheap value: the picture is decoded at its first use, and copies share it. A name without a picture gives
/// a null image that draws nothing.
class NamedImage
{
public:
    NamedImage() = default;
    explicit NamedImage(const QString &name) : m_name(name) {}

    bool isNull() const { return size().isEmpty(); }
    const QString &name() const { return m_name; }
    /// The size for which it was designed, in points.
    QSizeF size() const;

    /// Draws the whole picture into the rectangle, keeping the painter's state.
    void paint(QPainter *painter, const QRectF &target, qreal opacity = 1.0) const;
    /// The picture at a size in points for a screen of the scale factor.
    QPixmap pixmap(const QSizeF &size, qreal devicePixelRatio) const;
    /// The image as an icon for platform controls, sharp at any scale.
    QIcon icon() const;

    bool operator==(const NamedImage &other) const { return m_name == other.m_name; }

private:
    QString m_name;
};

} // namespace lumora
