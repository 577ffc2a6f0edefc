// SPDX-License-Identifier: MIT
#pragma once

#include "PressAnimation.h"
#include "widgets/style/KeyboardFocus.h"

#include <QAbstractButton>
#include <QAccessible>

namespace lumora
{

class NamedImage;

/// What the painted buttons share: an own text instead of the platform's title, the pointing hand, the press animation,
/// return and space, the ring that keyboard users see, the disabled look and what a screen reader learns.
///
/// clicked() is sent when the pointer is released over the button, on space and on return. A subclass gets
/// mouseEntered(), mouseExited() and mouseDown() only while the button is enabled; disabling it under the pointer
/// counts as the pointer leaving.
class PaintedButton : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
public:
    /// What is drawn, without mnemonics: an ampersand is an ampersand. Also the accessible name while no other is set.
    const QString &text() const { return m_text; }
    void setText(const QString &text);

    /// Plays the press animation; see PressAnimation.
    void touchIn() { m_press.touchIn(); }
    void touchOut() { m_press.touchOut(); }
    /// The scale the button is drawn at now, around its middle.
    qreal scale() const { return m_press.scale(); }

    QAccessible::Role accessibleRole() const { return m_role; }
    /// Whether a screen reader calls the button checked; meaningful for check boxes and radio buttons.
    virtual bool isActive() const { return false; }

protected:
    PaintedButton(QAccessible::Role role, QWidget *parent);

    /// Makes the pointer over the whole bounds known to the button. Called once by the constructor; the platform keeps
    /// the area in step with the bounds.
    void updateTrackingAreas();

    virtual void mouseEntered() {}
    virtual void mouseExited() {}
    /// Called when the pointer goes down on the button and again once the click was dealt with, so that what the owner
    /// changed in answer to clicked() shows.
    virtual void mouseDown() {}
    /// The space bar went down, or a press by key has been dealt with.
    virtual void keyDown() {}
    virtual void keyUp() {}
    /// Draws the button over its bounds; the scale and the disabled look are set on the painter.
    virtual void drawRect(QPainter &painter) = 0;
    virtual void drawFocusRing(QPainter &painter) = 0;

    /// Whether the pointer is over the button, as far as events have reported it.
    bool isHovered() const { return m_hovered; }
    /// Draws a picture sharp also at the scale that an animation has come to rest at.
    void drawImage(QPainter &painter, const NamedImage &image, const QRectF &target) const;

    bool event(QEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void enter();
    void leave();

    QString m_text;
    /// Before the animation, which becomes a child of the button and thereby sends it its first event.
    KeyboardFocus m_keyboardFocus;
    PressAnimation m_press{this};
    QAccessible::Role m_role;
    bool m_hovered = false;
};

} // namespace lumora
