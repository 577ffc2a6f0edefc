// SPDX-License-Identifier: MIT
#include "X11Pipette.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// The distance that Shift and an arrow key move the pointer, in points.
constexpr int largeStep = 10;

} // namespace

bool X11Pipette::isAvailable()
{
    return QGuiApplication::platformName() == u"xcb";
}

void X11Pipette::pick(QWidget *window)
{
    if (m_window)
        return;
    m_window = window->window();
    m_window->installEventFilter(this);
    m_window->grabMouse(Qt::CrossCursor);
    m_window->grabKeyboard();
}

bool X11Pipette::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_window)
        return Pipette::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto *press = static_cast<QMouseEvent *>(event);
        const QPoint position = press->globalPosition().toPoint();
        const bool chosen = press->button() == Qt::LeftButton;
        finish();
        if (chosen)
            take(position);
        else
            emit canceled();
        return true;
    }
    case QEvent::KeyPress:
        keyPressed(*static_cast<QKeyEvent *>(event));
        return true;
    case QEvent::ShortcutOverride:
        event->accept();
        return true;
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
    case QEvent::KeyRelease:
        return true;
    case QEvent::Hide:
        finish();
        emit canceled();
        return false;
    default:
        return false;
    }
}

void X11Pipette::keyPressed(const QKeyEvent &event)
{
    const int step = event.modifiers().testFlag(Qt::ShiftModifier) ? largeStep : 1;
    const QPoint pointer = QCursor::pos();
    switch (event.key()) {
    case Qt::Key_Escape:
        finish();
        emit canceled();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        finish();
        take(pointer);
        break;
    case Qt::Key_Left:
        QCursor::setPos(pointer - QPoint(step, 0));
        break;
    case Qt::Key_Right:
        QCursor::setPos(pointer + QPoint(step, 0));
        break;
    case Qt::Key_Up:
        QCursor::setPos(pointer - QPoint(0, step));
        break;
    case Qt::Key_Down:
        QCursor::setPos(pointer + QPoint(0, step));
        break;
    default:
        break;
    }
}

void X11Pipette::finish()
{
    m_window->releaseMouse();
    m_window->releaseKeyboard();
    m_window->removeEventFilter(this);
    m_window = nullptr;
}

void X11Pipette::take(const QPoint &globalPosition)
{
    QScreen *screen = QGuiApplication::screenAt(globalPosition);
    if (screen == nullptr) {
        emit failed();
        return;
    }
    const QPoint position = globalPosition - screen->geometry().topLeft();
    const QImage image = screen->grabWindow(0, position.x(), position.y(), 1, 1).toImage();
    if (image.isNull())
        emit failed();
    else
        emit picked(rgbaFrom(image.pixelColor(0, 0)));
}

} // namespace lumora
