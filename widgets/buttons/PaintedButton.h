// SPDX-License-Identifier: MIT
#pragma once

#include "PressAnimation.h"
#include "widgets/style/KeyboardFocus.h"

#include <QAbstractButton>
#include <QAccessible>

namespace lumora
{

class NamedImage;

/// The base of the painted buttons: their text, the hand cursor, the press animation, the return and space keys, the
/// focus ring, the disabled look and the accessible interface.
///
/// clicked() is sent when the pointer is released over the button, on space and on return. A subclass gets
/// mouseEntered(), mouseExited() and mouseDown() only while the button is enabled; if it is disabled under the pointer,
/// it gets mouseExited().
class PaintedButton : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
public:
    /// The drawn text, without mnemonics: an ampersand is an ampersand. Also the accessible name while no other is set.
    const QString &text() const { return m_text; }
    void setText(const QString &text);

    /// Plays the press animation; see PressAnimation.
    void touchIn() { m_press.touchIn(); }
    void touchOut() { m_press.touchOut(); }
    /// The current scale of the drawing, around the button's middle.
    qreal scale() const { return m_press.scale(); }

    QAccessible::Role accessibleRole() const { return m_role; }
    /// Whether a screen reader reports the button as checked; for check boxes and radio buttons.
    virtual bool isActive() const { return false; }

protected:
    PaintedButton(QAccessible::Role role, QWidget *parent);

    /// Starts the tracking of the pointer over the whole bounds. Called once by the constructor; the platform adapts
    /// the area when the bounds change.
    void updateTrackingAreas();

    virtual void mouseEntered() {}
    virtual void mouseExited() {}
    /// Called when the pointer is pressed on the button, and again after the click, so that the button shows what its
    /// owner changed in a slot of clicked().
    virtual void mouseDown() {}
    /// Called when the space bar is pressed, and after a press by key.
    virtual void keyDown() {}
    virtual void keyUp() {}
    /// Draws the button over its bounds; the scale and the disabled look are set on the painter.
    virtual void drawRect(QPainter &painter) = 0;
    virtual void drawFocusRing(QPainter &painter) = 0;

    /// Whether the pointer is over the button, according to the events so far.
    bool isHovered() const { return m_hovered; }
    /// Draws a picture, sharp also at the scale at which an animation ended.
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
    /// Declared before the animation, which becomes a child of the button and so sends it its first event.
    KeyboardFocus m_keyboardFocus;
    PressAnimation m_press{this};
    QAccessible::Role m_role;
    bool m_hovered = false;
};

} // namespace lumora
