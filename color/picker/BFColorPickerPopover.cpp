// SPDX-License-Identifier: MIT
#include "BFColorPickerPopover.h"

#include "BFColorPickerPopoverView.h"
#include "BFColorPickerViewController.h"
#include "ColorPanel.h"
#include "ColorWell.h"
#include "PickerContent.h"
#include "SharedInstance.h"
#include "widgets/popover/SFBPopover.h"
#include "widgets/style/EasedAnimation.h"
#include "widgets/style/Palette.h"

#include <QApplication>
#include <QMouseEvent>

#include <utility>

namespace lumora
{

namespace
{

SharedInstance<BFColorPickerPopover> shared;

constexpr qreal borderWidth = 1;
constexpr qreal arrowWidth = 24;
constexpr qreal arrowHeight = 12;

bool isOnColorWell(const QObject *object)
{
    for (; object != nullptr; object = object->parent()) {
        if (qobject_cast<const ColorWell *>(object) != nullptr)
            return true;
    }
    return false;
}

} // namespace

BFColorPickerPopover *BFColorPickerPopover::sharedPopover()
{
    return shared.get();
}

BFColorPickerPopover::BFColorPickerPopover() : m_return(new EasedAnimation(this))
{
    connect(m_return, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &value) { setWindowOrigin(value.toPointF()); });
}

BFColorPickerPopover::~BFColorPickerPopover() = default;

RgbaColor BFColorPickerPopover::color() const
{
    return m_observing ? colorPanel()->color() : m_color;
}

void BFColorPickerPopover::setColor(const RgbaColor &color)
{
    m_color = color;
    if (m_shown)
        colorPanel()->setColor(color);
}

void BFColorPickerPopover::setTarget(QObject *target, Action action)
{
    m_target = target;
    m_action = std::move(action);
}

void BFColorPickerPopover::removeTargetAndAction()
{
    setTarget(nullptr, {});
}

ColorPanel *BFColorPickerPopover::colorPanel() const
{
    return m_contentViewController ? m_contentViewController->colorPanel() : nullptr;
}

ColorWell *BFColorPickerPopover::colorWell() const
{
    return m_colorWell;
}

void BFColorPickerPopover::setColorWell(ColorWell *well)
{
    m_colorWell = well;
}

BFColorPickerViewController *BFColorPickerPopover::contentViewController() const
{
    return m_contentViewController;
}

void BFColorPickerPopover::makeBalloon()
{
    auto *controller = new BFColorPickerViewController;
    m_contentViewController = controller;
    m_balloon = std::make_unique<SFBPopover>(controller);
    m_balloon->setBackgroundColor(Qt::white);
    m_balloon->setBorderColor(palette::separator);
    m_balloon->setBorderWidth(borderWidth);
    m_balloon->setArrowWidth(arrowWidth);
    m_balloon->setArrowHeight(arrowHeight);
    m_balloon->popoverWindow()->setAccessibleName(qtTrId("COLOR_PICKER"));
    connect(m_balloon.get(), &SFBPopover::closing, this, &BFColorPickerPopover::balloonClosing);
    connect(m_balloon.get(), &SFBPopover::closed, this, &BFColorPickerPopover::closed);
}

void BFColorPickerPopover::showRelativeToRect(const QRect &rect, QWidget *ofView, Qt::Edge preferredEdge)
{
    if (m_shown) {
        const QPointer<QObject> target = m_target;
        const Action action = m_action;
        closeWithoutAnimation();
        setTarget(target, action);
    }
    makeBalloon();

    m_balloon->setAnimates(m_animates);
    m_balloon->displayPopover({ofView, preferredEdge, 0, rect});
    m_parentWindow = ofView->window();
    m_windowOrigin = m_balloon->popoverWindow()->frame().topLeft();
    m_shown = true;
    qApp->installEventFilter(this);

    colorPanel()->setColor(m_color);
    observeColor(true);
    emit shown();
}

void BFColorPickerPopover::close()
{
    closeAndDeactivateColorWell(true, true, true);
}

void BFColorPickerPopover::closeWithoutAnimation()
{
    const bool animated = std::exchange(m_animates, false);
    close();
    m_animates = animated;
}

void BFColorPickerPopover::closeAndDeactivateColorWell(bool deactivate, bool removeTarget, bool removeObserver)
{
    if (removeTarget)
        removeTargetAndAction();
    if (removeObserver)
        observeColor(false);
    if (m_balloon) {
        colorPanel()->rememberColor();
        const RgbaColor picked = colorPanel()->color();
        m_shown = false;
        m_return->stop();
        qApp->removeEventFilter(this);
        m_balloon->setAnimates(m_animates);
        m_balloon->closePopover();
        colorPanel()->setColor(picked);
    }
    if (deactivate)
        deactivateColorWell();
}

void BFColorPickerPopover::deactivateColorWell()
{
    if (m_colorWell)
        m_colorWell->deactivate();
    m_colorWell = nullptr;
}

bool BFColorPickerPopover::delegatePopoverShouldClose()
{
    if (!m_shown)
        return false;
    removeTargetAndAction();
    observeColor(false);
    deactivateColorWell();
    return true;
}

void BFColorPickerPopover::setWindowOrigin(const QPointF &origin)
{
    m_windowOrigin = origin;
    SFBPopoverWindow *window = m_balloon->popoverWindow();
    // Otherwise each step would have to hide the window, which would end the drag.
    if (!window->platform().movesWhileShown)
        return;
    window->setFrameOrigin(origin);
    emit window->draggedAway();
}

void BFColorPickerPopover::animateWindowOriginTo(const QPointF &origin)
{
    m_return->run(m_windowOrigin, origin);
}

void BFColorPickerPopover::setShouldHideAnchor(bool hide)
{
    m_shouldHideAnchor = hide;
    m_balloon->setDrawsArrow(!hide);
}

void BFColorPickerPopover::tearOff()
{
    PickerContent *content = m_contentViewController->colorPanelView();
    if (content == nullptr)
        return;
    colorPanel()->setContentRect(QRect(content->mapToGlobal(QPoint()), content->size()));
    // The floating panel replaces the balloon at once; a fade would show both.
    const bool animated = std::exchange(m_animates, false);
    closeAndDeactivateColorWell(false, false, false);
    m_animates = animated;
    colorPanel()->orderFront(m_parentWindow);
}

bool BFColorPickerPopover::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress && watched->isWidgetType() && !isOnColorWell(watched) &&
        static_cast<QWidget *>(watched)->window() == m_parentWindow && delegatePopoverShouldClose())
        close();
    return QObject::eventFilter(watched, event);
}

void BFColorPickerPopover::observeColor(bool observe)
{
    if (m_observing == observe)
        return;
    m_observing = observe;
    ColorPanel *panel = colorPanel();
    if (observe)
        connect(panel, &ColorPanel::colorChanged, this, &BFColorPickerPopover::panelColorChanged);
    else
        disconnect(panel, &ColorPanel::colorChanged, this, &BFColorPickerPopover::panelColorChanged);
}

void BFColorPickerPopover::panelColorChanged(const RgbaColor &color)
{
    m_color = color;
    if (m_target && m_action)
        m_action(this);
}

void BFColorPickerPopover::balloonClosing()
{
    // It closed by itself: by Escape, or because its parent window was closed.
    if (m_shown)
        cancelOperation();
}

} // namespace lumora
