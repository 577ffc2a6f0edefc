// SPDX-License-Identifier: MIT
#include "SFBPopover.h"

#include "PopoverKeyStatus.h"
#include "ScreenCoordinates.h"
#include "ViewController.h"
#include "widgets/style/EasedAnimation.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace lumora
{

SFBPopover::SFBPopover() : SFBPopover(static_cast<ViewController *>(nullptr)) {}

SFBPopover::SFBPopover(QWidget *contentView, QObject *parent) : SFBPopover(new ViewController(contentView), parent) {}

SFBPopover::SFBPopover(ViewController *contentViewController, QObject *parent, const PopoverPlatform &platform)
    : QObject(parent), m_window(std::make_unique<SFBPopoverWindow>(QRectF(), platform)),
      m_keyStatus(new PopoverKeyStatus(m_window.get())), m_fade(new EasedAnimation(m_window.get()))
{
    m_fade->setObjectName(u"alphaValue"_s);
    connect(m_fade, &QVariantAnimation::valueChanged, m_window.get(),
            [this](const QVariant &value) { m_window->setAlphaValue(value.toReal()); });
    connect(m_fade, &QVariantAnimation::finished, this, [this] { animationDidStop(m_fade, true); });
    connect(m_window.get(), &SFBPopoverWindow::canceled, this, [this] { closePopover(); });
    connect(m_window.get(), &SFBPopoverWindow::orderedOut, this, &SFBPopover::windowDidOrderOut);
    connect(m_window.get(), &SFBPopoverWindow::draggedAway, this, [this] { m_draggedAway = true; });
    connect(m_keyStatus, &PopoverKeyStatus::canceled, this, [this] { closePopover(); });
    connect(m_keyStatus, &PopoverKeyStatus::resignedKey, this, &SFBPopover::windowDidResignKey);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &SFBPopover::applicationStateChanged);
    m_applicationWasActive = QGuiApplication::applicationState() == Qt::ApplicationActive;
    if (contentViewController)
        setContentViewController(contentViewController);
}

SFBPopover::~SFBPopover()
{
    // No more signals: the popover deletes its window.
    m_window->disconnect(this);
}

void SFBPopover::setContentViewController(ViewController *controller)
{
    if (controller == m_contentViewController)
        return;
    delete m_contentViewController;
    m_contentViewController = controller;
    if (!controller)
        return;
    controller->setParent(this);
    m_window->setContentView(controller->view());
    if (controller->view())
        m_window->setMinSize(controller->view()->size());
}

bool SFBPopover::isVisible() const
{
    return m_window->isVisible();
}

bool SFBPopover::isKeyWindow() const
{
    return m_keyStatus->isKeyWindow();
}

PopoverPosition SFBPopover::bestPositionInWindow(QWidget *window, const QPointF &atPoint) const
{
    const QWidget *parentWindow = window ? window->window() : nullptr;
    PopoverSurroundings surroundings;
    surroundings.point = parentWindow ? basePointToScreen(parentWindow, atPoint) : atPoint;
    surroundings.frameSize = m_window->frame().size();
    const QScreen *screen = parentWindow ? parentWindow->screen() : nullptr;
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (screen)
        surroundings.screen = flippedOnScreen(QRectF(screen->availableGeometry()));
    if (parentWindow)
        surroundings.parentFrame = flippedOnScreen(QRectF(parentWindow->geometry()));
    return bestPopoverPosition(surroundings, m_window->popoverWindowFrame()->metrics());
}

void SFBPopover::displayPopoverInWindow(QWidget *window, const QPointF &atPoint, bool chooseBestLocation)
{
    if (isVisible())
        return;
    QWidget *parentWindow = window ? window->window() : nullptr;
    takeContentSize();
    if (chooseBestLocation)
        setPosition(bestPositionInWindow(parentWindow, atPoint));
    m_anchor = PopoverAnchor(parentWindow, atPoint);
    show(parentWindow);
}

void SFBPopover::displayPopover(const PopoverTarget &target)
{
    if (isVisible() || !target.view)
        return;
    takeContentSize();
    m_anchor = PopoverAnchor(target);
    show(target.view->window());
}

/// The content may have been resized while it was hidden.
void SFBPopover::takeContentSize()
{
    const QWidget *content = m_window->contentView();
    if (content && content->size() != m_window->contentRectForFrameRect(m_window->frame()).size().toSize())
        m_window->setContentSize(content->size());
}

void SFBPopover::show(QWidget *parentWindow)
{
    m_draggedAway = false;
    placeAtAnchor();
    if (m_animates)
        m_window->setAlphaValue(0);
    if (parentWindow) {
        parentWindow->installEventFilter(this);
        m_parentPosition = parentWindow->pos();
    }
    const bool keyboard = wantsKeyboard(m_window->contentView(), parentWindow);
    m_window->orderFront(parentWindow, keyboard);
    m_keyStatus->begin(parentWindow, keyboard);
    emit displayed();
    if (!m_animates)
        return;
    fadeTo(1);
    // Done here, since nothing is visible before the fade's first steps: drawing the shadow takes most of the first
    // frame.
    QMetaObject::invokeMethod(m_window->popoverWindowFrame(), &SFBPopoverWindowFrame::prepareDrawing,
                              Qt::QueuedConnection);
}

void SFBPopover::movePopoverToPoint(const QPointF &point)
{
    m_anchor = PopoverAnchor(m_window->parentWindow(), point);
    m_draggedAway = false;
    placeAtAnchor();
}

void SFBPopover::placeAtAnchor()
{
    const QSizeF contentSize = m_window->contentRectForFrameRect(m_window->frame()).size();
    const auto placement = m_anchor.placement(contentSize, m_window->popoverWindowFrame()->metrics());
    if (!placement)
        return;
    setPosition(placement->position);
    const QRectF bounds(QPointF(), m_window->frame().size());
    m_window->setFrameOrigin(placement->point - m_window->popoverWindowFrame()->attachmentPointForRect(bounds));
}

void SFBPopover::fadeTo(qreal alpha)
{
    m_fade->run(m_window->alphaValue(), alpha);
}

void SFBPopover::closePopover(QObject *)
{
    if (!isVisible() || m_closing)
        return;
    m_closing = true;
    emit closing();
    m_keyStatus->end();
    if (m_animates)
        fadeTo(0);
    else
        m_window->orderOut();
}

void SFBPopover::animationDidStop(QAbstractAnimation *animation, bool finished)
{
    if (!finished || animation != m_fade)
        return;
    if (m_window->alphaValue() == 0)
        m_window->orderOut();
}

void SFBPopover::windowDidOrderOut()
{
    if (!m_closing)
        emit closing();
    m_fade->stop();
    m_keyStatus->end();
    if (QWidget *parentWindow = m_window->parentWindow())
        parentWindow->removeEventFilter(this);
    m_closing = false;
    m_window->setAlphaValue(1);
    emit closed();
}

void SFBPopover::windowDidResignKey()
{
    if (m_closesWhenPopoverResignsKey)
        closePopover();
}

void SFBPopover::applicationDidResignActive()
{
    if (m_closesWhenApplicationBecomesInactive)
        closePopover();
}

void SFBPopover::applicationStateChanged(Qt::ApplicationState state)
{
    const bool active = state == Qt::ApplicationActive;
    const bool resigned = m_applicationWasActive && !active;
    m_applicationWasActive = active;
    if (resigned)
        applicationDidResignActive();
}

void SFBPopover::parentMoved()
{
    const QWidget *parentWindow = m_window->parentWindow();
    if (!parentWindow)
        return;
    const QPoint travel = parentWindow->pos() - m_parentPosition;
    m_parentPosition = parentWindow->pos();
    if (m_draggedAway)
        m_window->setFrameOrigin(m_window->frame().topLeft() + QPointF(travel.x(), -travel.y()));
    else
        placeAtAnchor();
}

void SFBPopover::parentLaidOut()
{
    if (m_window->parentWindow() && !m_draggedAway)
        placeAtAnchor();
}

bool SFBPopover::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window->parentWindow()) {
        switch (event->type()) {
        case QEvent::Move:
            parentMoved();
            break;
        case QEvent::Resize:
            // The controls have their places only after the layouts were updated for the new size.
            QMetaObject::invokeMethod(this, &SFBPopover::parentLaidOut, Qt::QueuedConnection);
            break;
        case QEvent::Hide:
            if (!event->spontaneous())
                m_window->orderOut();
            break;
        default:
            break;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace lumora
