// SPDX-License-Identifier: MIT
#pragma once

#include "FilledButton.h"
#include "widgets/style/NamedImage.h"

namespace lumora
{

/// A filled button with an icon, a text and three colors: at rest, under the pointer, after a press until the pointer
/// leaves.
///
/// The icon is a picture of the whole button with its glyph near the left edge. It is drawn as high as the button, in
/// its own aspect ratio, at the edge where reading begins; the text keeps clear of the glyph.
class IconButton final : public FilledButton
{
    Q_OBJECT
    Q_PROPERTY(QString iconName READ iconName WRITE setIconName)
    Q_PROPERTY(QColor hoverColor READ hoverColor WRITE setHoverColor)
    Q_PROPERTY(QColor activeColor READ activeColor WRITE setActiveColor)
public:
    explicit IconButton(QWidget *parent = nullptr);

    const NamedImage &icon() const { return m_icon; }
    void setIcon(const NamedImage &icon);
    /// The icon by its name in the program's resources, for interface files.
    QString iconName() const { return m_icon.name(); }
    void setIconName(const QString &name) { setIcon(NamedImage(name)); }

    QColor hoverColor() const { return m_hoverColor; }
    void setHoverColor(const QColor &color) { m_hoverColor = color; }
    QColor activeColor() const { return m_activeColor; }
    void setActiveColor(const QColor &color) { m_activeColor = color; }

protected:
    QColor colorUnderPointer() const override { return m_hoverColor; }
    QColor colorPressed() const override { return m_activeColor; }
    QRectF iconInk(QSizeF bounds) const override;
    void drawIcon(QPainter &painter) override;

private:
    NamedImage m_icon;
    /// The part of the icon that is not empty, in fractions of its size.
    QRectF m_ink;
    QColor m_hoverColor;
    QColor m_activeColor;
};

} // namespace lumora
