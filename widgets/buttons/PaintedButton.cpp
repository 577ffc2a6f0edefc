// SPDX-License-Identifier: MIT
#include "PaintedButton.h"

#include "PaintedButtonAccessible.h"
#include "widgets/style/InstallAccessible.h"
#include "widgets/style/NamedImage.h"
#include "widgets/style/Palette.h"

#include <QEnterEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace lumora
{

PaintedButton::PaintedButton(QAccessible::Role role, QWidget *parent) : QAbstractButton(parent), m_role(role)
{
    installAccessible<PaintedButton, PaintedButtonAccessible>();
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    updateTrackingAreas();
    connect(&m_press, &PressAnimation::valueChanged, this, qOverload<>(&QWidget::update));
}

void PaintedButton::setText(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    updateGeometry();
    update();
    QAccessibleEvent changed(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&changed);
}

void PaintedButton::updateTrackingAreas()
{
    setAttribute(Qt::WA_Hover);
}

void PaintedButton::drawImage(QPainter &painter, const NamedImage &image, const QRectF &target) const
{
    const QTransform transform = painter.worldTransform();
    if (m_press.state() == QAbstractAnimation::Running || !transform.isScaling()) {
        image.paint(&painter, target);
        return;
    }
    const QRectF mapped = transform.mapRect(target);
    painter.setWorldTransform({});
    image.paint(&painter, mapped);
    painter.setWorldTransform(transform);
}

bool PaintedButton::event(QEvent *event)
{
    if (m_keyboardFocus.follow(event))
        update();
    // When a dialog opens under the pointer, the button gets no leave event.
    if (event->type() == QEvent::WindowBlocked)
        leave();
    return QAbstractButton::event(event);
}

void PaintedButton::enterEvent(QEnterEvent *event)
{
    QAbstractButton::enterEvent(event);
    enter();
}

void PaintedButton::leaveEvent(QEvent *event)
{
    QAbstractButton::leaveEvent(event);
    leave();
}

void PaintedButton::enter()
{
    if (m_hovered || !isEnabled())
        return;
    m_hovered = true;
    mouseEntered();
    update();
}

void PaintedButton::leave()
{
    if (!m_hovered)
        return;
    m_hovered = false;
    mouseExited();
    update();
}

void PaintedButton::mousePressEvent(QMouseEvent *event)
{
    const QPointer<PaintedButton> alive(this);
    QAbstractButton::mousePressEvent(event);
    if (!alive || !isDown() || event->button() != Qt::LeftButton)
        return;
    mouseDown();
    update();
}

void PaintedButton::mouseReleaseEvent(QMouseEvent *event)
{
    const bool ends = isDown() && event->button() == Qt::LeftButton;
    const QPointer<PaintedButton> alive(this);
    // The owner may close the window that the button is in, and so delete the button.
    QAbstractButton::mouseReleaseEvent(event);
    if (!alive)
        return;
    if (!rect().contains(event->position().toPoint())) {
        leave();
    } else if (ends && isEnabled()) {
        // A dialog that the click opened has taken the pointer away.
        if (m_hovered)
            mouseDown();
        else
            mouseExited();
        update();
    }
}

void PaintedButton::keyPressEvent(QKeyEvent *event)
{
    const QPointer<PaintedButton> alive(this);
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (event->isAutoRepeat())
            return;
        click();
        if (alive) {
            keyUp();
            update();
        }
        return;
    }
    const bool wasDown = isDown();
    QAbstractButton::keyPressEvent(event);
    if (alive && isDown() && !wasDown) {
        keyDown();
        update();
    }
}

void PaintedButton::keyReleaseEvent(QKeyEvent *event)
{
    const QPointer<PaintedButton> alive(this);
    const bool wasDown = isDown();
    QAbstractButton::keyReleaseEvent(event);
    if (alive && wasDown && !isDown()) {
        keyUp();
        update();
    }
}

void PaintedButton::changeEvent(QEvent *event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() != QEvent::EnabledChange)
        return;
    setCursor(isEnabled() ? Qt::PointingHandCursor : Qt::ArrowCursor);
    if (!isEnabled())
        leave();
    else if (underMouse())
        enter();
}

void PaintedButton::hideEvent(QHideEvent *event)
{
    QAbstractButton::hideEvent(event);
    leave();
    m_press.finish();
}

void PaintedButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    // Text runs as it is written: the signs of a foreign name keep their order in a mirrored window.
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (!isEnabled())
        painter.setOpacity(palette::disabledOpacity);
    if (const qreal factor = scale(); factor != 1.0) {
        const QPointF middle = QRectF(rect()).center();
        painter.translate(middle);
        painter.scale(factor, factor);
        painter.translate(-middle);
    }
    drawRect(painter);
    if (hasFocus() && m_keyboardFocus.isShown())
        drawFocusRing(painter);
}

} // namespace lumora
