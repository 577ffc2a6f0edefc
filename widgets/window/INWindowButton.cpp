// SPDX-License-Identifier: MIT
#include "INWindowButton.h"

#include "INWindowButtonGroup.h"

#include <QEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace lumora
{

INWindowButton::INWindowButton(const QString &groupIdentifier, QWidget *parent)
    : QAbstractButton(parent), m_group(INWindowButtonGroup::groupWithIdentifier(groupIdentifier))
{
    // Not in the tab order, as in every window frame. The window's menu offers the same actions to the keyboard.
    setFocusPolicy(Qt::NoFocus);
    connect(m_group, &INWindowButtonGroup::INWindowButtonGroupDidUpdateRolloverStateNotification, this,
            qOverload<>(&QWidget::update));
}

INWindowButton::INWindowButton(const QString &groupIdentifier, const QString &kind, QWidget *parent)
    : INWindowButton(groupIdentifier, parent)
{
    const auto named = [&kind](const QString &state) {
        return NamedImage(u"window_"_s + kind + QLatin1Char('_') + state);
    };
    m_activeImage = named(u"active"_s);
    m_activeNotKeyWindowImage = named(u"notkey"_s);
    m_inactiveImage = named(u"inactive"_s);
    m_rolloverImage = named(u"rollover"_s);
    m_pressedImage = named(u"pressed"_s);
    resize(sizeHint());
}

INWindowButton::~INWindowButton()
{
    release();
}

QString INWindowButton::groupIdentifier() const
{
    return m_group->identifier();
}

void INWindowButton::change(NamedImage &image, const NamedImage &to)
{
    if (image == to)
        return;
    image = to;
    updateGeometry();
    update();
}

void INWindowButton::setActiveImage(const NamedImage &image)
{
    change(m_activeImage, image);
}

void INWindowButton::setActiveNotKeyWindowImage(const NamedImage &image)
{
    change(m_activeNotKeyWindowImage, image);
}

void INWindowButton::setInactiveImage(const NamedImage &image)
{
    change(m_inactiveImage, image);
}

void INWindowButton::setRolloverImage(const NamedImage &image)
{
    change(m_rolloverImage, image);
}

void INWindowButton::setPressedImage(const NamedImage &image)
{
    change(m_pressedImage, image);
}

NamedImage INWindowButton::image() const
{
    if (!isEnabled())
        return m_inactiveImage;
    if (isDown() && !m_pressedImage.isNull())
        return m_pressedImage;
    if (m_group->shouldDisplayRollOver())
        return m_rolloverImage;
    return isActiveWindow() ? m_activeImage : m_activeNotKeyWindowImage;
}

QSize INWindowButton::sizeHint() const
{
    return m_activeImage.size().toSize();
}

void INWindowButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const NamedImage shown = image();
    const QSizeF fitted = shown.size().boundedTo(size());
    QRectF target(QPointF(), fitted);
    target.moveCenter(QRectF(rect()).center());
    shown.paint(&painter, target);
}

void INWindowButton::enterEvent(QEnterEvent *event)
{
    QAbstractButton::enterEvent(event);
    if (m_captures)
        return;
    m_captures = true;
    m_group->didCaptureMousePointer();
}

void INWindowButton::leaveEvent(QEvent *event)
{
    QAbstractButton::leaveEvent(event);
    release();
}

void INWindowButton::release()
{
    if (!m_captures)
        return;
    m_captures = false;
    m_group->didReleaseMousePointer();
}

void INWindowButton::hideEvent(QHideEvent *event)
{
    QAbstractButton::hideEvent(event);
    // A button that is hidden under the mouse, with its window for example, gets no leave event.
    release();
}

void INWindowButton::changeEvent(QEvent *event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::ActivationChange || event->type() == QEvent::EnabledChange)
        update();
}

} // namespace lumora
