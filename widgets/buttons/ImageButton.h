// SPDX-License-Identifier: MIT
#pragma once

#include "PaintedButton.h"
#include "widgets/style/NamedImage.h"

namespace lumora
{

/// A button that shows only a picture, and another picture while it is pressed. Give it an accessible name or a tool
/// tip, since it has no text.
class ImageButton final : public PaintedButton
{
    Q_OBJECT
    Q_PROPERTY(QString imageName READ imageName WRITE setImageName)
    Q_PROPERTY(QString alternateImageName READ alternateImageName WRITE setAlternateImageName)
public:
    explicit ImageButton(QWidget *parent = nullptr);

    const NamedImage &image() const { return m_image; }
    void setImage(const NamedImage &image);
    /// Shown while the button is pressed; if null, the image itself is shown.
    const NamedImage &alternateImage() const { return m_alternateImage; }
    void setAlternateImage(const NamedImage &image);

    /// The pictures by their names in the program's resources, for interface files.
    QString imageName() const { return m_image.name(); }
    void setImageName(const QString &name) { setImage(NamedImage(name)); }
    QString alternateImageName() const { return m_alternateImage.name(); }
    void setAlternateImageName(const QString &name) { setAlternateImage(NamedImage(name)); }

    QSize sizeHint() const override;

protected:
    void mouseEntered() override { touchIn(); }
    void mouseExited() override { touchOut(); }
    void keyDown() override { touchIn(); }
    void keyUp() override;
    void drawRect(QPainter &painter) override;
    void drawFocusRing(QPainter &painter) override;

private:
    NamedImage m_image;
    NamedImage m_alternateImage;
};

} // namespace lumora
