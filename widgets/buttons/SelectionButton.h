// SPDX-License-Identifier: MIT
#pragma once

#include "PaintedButton.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/NamedImage.h"

namespace lumora
{

/// The base of check boxes and radio buttons: a 20 × 20 image at the edge where reading begins, and a text beside it.
/// The button never checks itself: its owner sets `active` in a slot of clicked().
class SelectionButton : public PaintedButton
{
    Q_OBJECT
    Q_PROPERTY(bool active READ isActive WRITE setActive)
public:
    bool isActive() const override { return m_active; }
    void setActive(bool active);

    const NamedImage &idleImage() const { return m_idleImage; }
    const NamedImage &hoverImage() const { return m_hoverImage; }
    const NamedImage &activeImage() const { return m_activeImage; }
    /// The image while the button is not active.
    const NamedImage &currentImage() const { return m_currentImage; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    /// Loads the images named after the stem ("button_checkbox"), idle first.
    SelectionButton(QAccessible::Role role, const QString &imageStem, QWidget *parent);

    void setCurrentImage(const NamedImage &image);
    /// Whether the image never changes.
    virtual bool isFrozen() const { return false; }

    void mouseEntered() override;
    void mouseExited() override;
    void mouseDown() override;
    void drawRect(QPainter &painter) override;
    void drawFocusRing(QPainter &painter) override;

private:
    NamedImage m_idleImage;
    NamedImage m_hoverImage;
    NamedImage m_activeImage;
    NamedImage m_currentImage;
    QFont m_font = latoBold(15);
    bool m_active = false;
};

} // namespace lumora
