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

/// The interval of reading the screen, in milliseconds.
constexpr int loupeInterval = 50;

/// The screen's pixels in the square around the position, in the screen's own pixels; null if it cannot be read.
QImage pixelsAround(QScreen &screen, const QPoint &globalPosition, int across)
{
    const QPoint position = globalPosition - screen.geometry().topLeft();
    const int half = across / 2;
    QImage image = screen.grabWindow(0, position.x() - half, position.y() - half, across, across).toImage();
    if (image.isNull())
        return {};
    // At a larger scale a point has several pixels; shows those around the middle one.
    const qreal scale = image.devicePixelRatio();
    image.setDevicePixelRatio(1);
    const auto first = static_cast<int>(half * scale) - half;
    return image.copy(first, first, across, across);
}

} // namespace

X11Pipette::X11Pipette(QObject *parent) : Pipette(parent)
{
    m_loupeTimer.setInterval(loupeInterval);
    connect(&m_loupeTimer, &QTimer::timeout, this, &X11Pipette::showLoupe);
}

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
    m_loupe = std::make_unique<Loupe>();
    m_loupeTimer.start();
    showLoupe();
}

void X11Pipette::showLoupe()
{
    const QPoint pointer = QCursor::pos();
    QScreen *screen = QGuiApplication::screenAt(pointer);
    const QImage pixels = screen == nullptr ? QImage() : pixelsAround(*screen, pointer, Loupe::pixelsAcross);
    if (pixels.isNull())
        m_loupe->hide();
    else
        m_loupe->showPixels(pixels, pointer, screen->geometry());
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
        showLoupe();
        return true;
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
    m_loupeTimer.stop();
    m_loupe.reset();
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
