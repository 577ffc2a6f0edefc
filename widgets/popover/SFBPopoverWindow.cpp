// SPDX-License-Identifier: MIT
#include "SFBPopoverWindow.h"

#include "PopoverAccessible.h"
#include "ScreenCoordinates.h"
#include "WindowShape.h"
#include "widgets/style/InstallAccessible.h"

#include <QGraphicsOpacityEffect>
#include <QGuiApplication>
#include <QHideEvent>
#include <QKeyEvent>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <utility>

namespace lumora
{

namespace
{

constexpr int shadowMargin = SFBPopoverWindowFrame::shadowMargin;

} // namespace

SFBPopoverWindow::SFBPopoverWindow(const QRectF &contentRect, const PopoverPlatform &platform)
    : QWidget(nullptr, platform.windowFlags), m_platform(platform), m_frameView(new SFBPopoverWindowFrame(this))
{
    installAccessible<SFBPopoverWindow, PopoverAccessible>();
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_QuitOnClose, false);
    m_frame = frameRectForContentRect(contentRect);
    placeWidget();
    connect(m_frameView, &SFBPopoverWindowFrame::outlineChanged, this, &SFBPopoverWindow::updateShape);
    connect(m_frameView, &SFBPopoverWindowFrame::dragStarted, this, [this] { m_frameBeforeDrag = m_frame; });
    connect(m_frameView, &SFBPopoverWindowFrame::dragEnded, this, &SFBPopoverWindow::endDrag);
    connect(m_frameView, &SFBPopoverWindowFrame::moveDragged, this, &SFBPopoverWindow::moveByDrag);
    connect(m_frameView, &SFBPopoverWindowFrame::resizeDragged, this, &SFBPopoverWindow::resizeByDrag);
}

SFBPopoverWindow::~SFBPopoverWindow() = default;

void SFBPopoverWindow::setContentView(QWidget *view)
{
    if (view == m_contentView)
        return;
    delete m_contentView;
    m_contentView = view;
    if (!view)
        return;
    // A view that was never resized has no meaningful size yet.
    if (!view->testAttribute(Qt::WA_Resized))
        view->adjustSize();
    const QSizeF size = view->size();
    view->setParent(m_frameView);
    view->show();
    setContentSize(size);
    placeContentView();
}

void SFBPopoverWindow::setContentSize(const QSizeF &size)
{
    const QPointF attachment = attachmentPoint();
    const QRectF resized = frameRectForContentRect(QRectF(contentRectForFrameRect(m_frame).topLeft(), size));
    const QRectF atOrigin(QPointF(), resized.size());
    setFrame(atOrigin.translated(attachment - m_frameView->attachmentPointForRect(atOrigin)));
}

QRectF SFBPopoverWindow::contentRectForFrameRect(const QRectF &frameRect) const
{
    return m_frameView->contentRectForFrameRect(frameRect);
}

QRectF SFBPopoverWindow::frameRectForContentRect(const QRectF &contentRect) const
{
    return m_frameView->frameRectForContentRect(contentRect);
}

void SFBPopoverWindow::setFrame(const QRectF &frame)
{
    if (frame == m_frame)
        return;
    m_frame = frame;
    placeWidget();
}

void SFBPopoverWindow::setFrameOrigin(const QPointF &origin)
{
    setFrame(QRectF(origin, m_frame.size()));
}

QPointF SFBPopoverWindow::attachmentPoint() const
{
    return m_frameView->attachmentPointForRect(m_frame);
}

void SFBPopoverWindow::placeWidget()
{
    const QRectF yDown = flippedOnScreen(m_frame);
    const QSize size(static_cast<int>(std::ceil(yDown.width())), static_cast<int>(std::ceil(yDown.height())));
    const QRect target =
        QRect(yDown.topLeft().toPoint(), size).adjusted(-shadowMargin, -shadowMargin, shadowMargin, shadowMargin);
    if (target == geometry())
        return;
    const bool remaps = isVisible() && !m_platform.movesWhileShown;
    if (remaps) {
        m_remapping = true;
        hide();
    }
    setGeometry(target);
    m_frameView->setGeometry(rect());
    placeContentView();
    if (remaps) {
        show();
        m_remapping = false;
    }
}

void SFBPopoverWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_frameView->setGeometry(rect());
    placeContentView();
}

void SFBPopoverWindow::placeContentView()
{
    if (!m_contentView)
        return;
    const QRectF area =
        flipped(m_frameView->contentArea(), m_frameView->bounds().height()).translated(shadowMargin, shadowMargin);
    m_contentView->setGeometry(QRect(area.topLeft().toPoint(), area.size().toSize()));
}

void SFBPopoverWindow::updateShape()
{
    placeContentView();
    if (!isVisible())
        return;
    QPainterPath outline = m_frameView->outline();
    outline.setFillRule(Qt::WindingFill);
    if (m_frameView->borderWidth() > 0) {
        QPainterPathStroker stroker(
            QPen(Qt::black, m_frameView->borderWidth(), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        outline = outline.united(stroker.createStroke(outline));
    }
    const QRegion balloon = QRegion(outline.toFillPolygon().toPolygon());
    // Without blending the margin would be black. So the window takes the balloon's shape, and its smooth edge is drawn
    // on a picture of the window below.
    const bool translucent = windowsAreTranslucent();
    m_frameView->setBlends(translucent);
    setWindowShape(windowHandle(), translucent ? QPainterPath() : outline);
    if (!translucent)
        m_frameView->setBackdrop(pictureBelow());
    setInputRegion(windowHandle(), balloon);
}

/// A picture of the part of the parent that this window covers; transparent beside the parent.
QPixmap SFBPopoverWindow::pictureBelow() const
{
    QPixmap below((QSizeF(size()) * devicePixelRatioF()).toSize());
    below.setDevicePixelRatio(devicePixelRatioF());
    below.fill(Qt::transparent);
    if (!m_parentWindow)
        return below;
    const QPoint origin = m_parentWindow->mapFromGlobal(mapToGlobal(QPoint()));
    const QRect covered = m_parentWindow->rect().intersected(QRect(origin, size()));
    if (!covered.isEmpty())
        m_parentWindow->render(&below, covered.topLeft() - origin, covered);
    return below;
}

void SFBPopoverWindow::setAlphaValue(qreal alpha)
{
    m_alphaValue = std::clamp(alpha, 0.0, 1.0);
    if (m_platform.blendsWindows) {
        setWindowOpacity(m_alphaValue);
        return;
    }
    auto *effect = qobject_cast<QGraphicsOpacityEffect *>(m_frameView->graphicsEffect());
    if (m_alphaValue == 1) {
        if (effect)
            m_frameView->setGraphicsEffect(nullptr);
        return;
    }
    if (!effect) {
        effect = new QGraphicsOpacityEffect;
        m_frameView->setGraphicsEffect(effect);
    }
    effect->setOpacity(m_alphaValue);
}

void SFBPopoverWindow::orderFront(QWidget *parentWindow, bool takingKeyboard)
{
    m_parentWindow = parentWindow;
    winId();
    QWindow *handle = windowHandle();
    if (parentWindow) {
        parentWindow->winId();
        handle->setTransientParent(parentWindow->windowHandle());
    } else {
        handle->setTransientParent(nullptr);
    }
    const bool activates = takingKeyboard && m_platform.takesKeyboard;
    setAttribute(Qt::WA_ShowWithoutActivating, !activates);
    handle->setFlag(Qt::WindowDoesNotAcceptFocus, !takingKeyboard);
    PopoverAccessible::renew(this);
    show();
    updateShape();
    if (activates)
        activateWindow();
    PopoverAccessible::announce(this);
}

void SFBPopoverWindow::orderOut()
{
    hide();
}

void SFBPopoverWindow::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous() || m_remapping)
        return;
    emit orderedOut();
    m_parentWindow = nullptr;
}

void SFBPopoverWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        emit canceled();
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

void SFBPopoverWindow::setPopoverPosition(PopoverPosition position)
{
    if (position == popoverPosition())
        return;
    const QPointF attachment = attachmentPoint();
    const QRectF content = contentRectForFrameRect(m_frame);
    m_frameView->setPopoverPosition(position);
    const QRectF frame = frameRectForContentRect(content);
    setFrame(frame.translated(attachment - m_frameView->attachmentPointForRect(frame)));
    if (isVisible())
        raise();
}

void SFBPopoverWindow::keepContentRectWhile(const std::function<void()> &changing)
{
    const QRectF content = contentRectForFrameRect(m_frame);
    changing();
    setFrame(frameRectForContentRect(content));
}

void SFBPopoverWindow::setDistance(qreal distance)
{
    keepContentRectWhile([this, distance] { m_frameView->setDistance(distance); });
}

void SFBPopoverWindow::setBorderWidth(qreal width)
{
    keepContentRectWhile([this, width] { m_frameView->setBorderWidth(width); });
}

void SFBPopoverWindow::setArrowHeight(qreal height)
{
    keepContentRectWhile([this, height] { m_frameView->setArrowHeight(height); });
}

void SFBPopoverWindow::setViewMargin(qreal margin)
{
    keepContentRectWhile([this, margin] { m_frameView->setViewMargin(margin); });
}

void SFBPopoverWindow::setBorderColor(const QColor &color)
{
    m_frameView->setBorderColor(color);
}

void SFBPopoverWindow::setCornerRadius(qreal radius)
{
    m_frameView->setCornerRadius(radius);
}

void SFBPopoverWindow::setDrawsArrow(bool draws)
{
    m_frameView->setDrawsArrow(draws);
}

void SFBPopoverWindow::setArrowWidth(qreal width)
{
    m_frameView->setArrowWidth(width);
}

void SFBPopoverWindow::setDrawRoundCornerBesideArrow(bool round)
{
    m_frameView->setDrawRoundCornerBesideArrow(round);
}

void SFBPopoverWindow::setPopoverBackgroundColor(const QColor &color)
{
    m_frameView->setBackgroundColor(color);
}

void SFBPopoverWindow::setMovable(bool movable)
{
    m_frameView->setMovable(movable);
}

void SFBPopoverWindow::setResizable(bool resizable)
{
    m_frameView->setResizable(resizable);
}

void SFBPopoverWindow::moveByDrag(const QPointF &travel)
{
    dragTo(m_frameBeforeDrag.translated(travel));
}

void SFBPopoverWindow::resizeByDrag(const QPointF &travel, const QPointF &corner)
{
    const QSizeF wanted(m_frameBeforeDrag.width() + travel.x() * corner.x(),
                        m_frameBeforeDrag.height() + travel.y() * corner.y());
    const QSizeF size = wanted.boundedTo(m_maxSize).expandedTo(m_minSize);
    QRectF frame(m_frameBeforeDrag.topLeft(), size);
    // The corner opposite the dragged one stays where it is.
    if (corner.x() < 0)
        frame.moveLeft(m_frameBeforeDrag.x() + m_frameBeforeDrag.width() - size.width());
    if (corner.y() < 0)
        frame.moveTop(m_frameBeforeDrag.y() + m_frameBeforeDrag.height() - size.height());
    dragTo(frame);
}

void SFBPopoverWindow::dragTo(const QRectF &frame)
{
    if (!m_platform.movesWhileShown) {
        // Moving it would hide it and show it again, which would take the mouse from it during the drag.
        m_dragTarget = frame;
        return;
    }
    setFrame(frame);
    emit draggedAway();
}

void SFBPopoverWindow::endDrag()
{
    const std::optional<QRectF> target = std::exchange(m_dragTarget, std::nullopt);
    if (!target)
        return;
    setFrame(*target);
    emit draggedAway();
}

} // namespace lumora
