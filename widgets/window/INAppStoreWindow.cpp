// SPDX-License-Identifier: MIT
#include "INAppStoreWindow.h"

#include "INTitlebarContainer.h"
#include "INTitlebarView.h"
#include "INWindowButton.h"
#include "StandardTitleBar.h"
#include "TitleBarLayout.h"
#include "WindowEdge.h"
#include "widgets/popover/PopoverGeometry.h"
#include "widgets/popover/ScreenCoordinates.h"
#include "widgets/style/AnimationTiming.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QGuiApplication>
#include <QMenu>
#include <QShortcut>
#include <QVariantAnimation>
#include <QWindow>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int titleFontPoints = 13;

QRect pixelRect(const QRectF &yUp, qreal height)
{
    const QRectF yDown = flipped(yUp, height);
    return {yDown.topLeft().toPoint(), yDown.size().toSize()};
}

} // namespace

INAppStoreWindow::INAppStoreWindow(QWidget *parent) : QWidget(parent, Qt::Window | Qt::FramelessWindowHint)
{
    doInitialWindowSetup();
}

INAppStoreWindow::INAppStoreWindow(const QRectF &contentRect, StyleMask styleMask, QScreen *screen)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint)
{
    m_styleMask = styleMask;
    doInitialWindowSetup();
    if (screen)
        setScreen(screen);
    setFrame(contentRect.adjusted(0, 0, 0, m_titleBarHeight));
}

INAppStoreWindow::~INAppStoreWindow()
{
    // The parts of the window are deleted as its children; they must not call the window any more.
    m_delegateProxy.setSecondaryDelegate(nullptr);
}

void INAppStoreWindow::doInitialWindowSetup()
{
    const StandardTitleBar &standard = standardTitleBar();
    m_titleBarHeight = standard.height;
    m_trafficLightButtonsLeftMargin = standard.trafficLightButtonsLeftMargin;
    m_trafficLightSeparation = standard.trafficLightSeparation;
    m_titleFont = latoRegular(titleFontPoints);
    m_titleTextColor = palette::titleText;
    m_inactiveTitleTextColor = palette::inactiveTitleText;
    m_doubleClickPreference = std::make_shared<DesktopDoubleClickPreference>();
    setAutoFillBackground(true);
    createTitlebarView();
    createButtons();
    const std::array<Qt::Edge, 4> edges = {Qt::TopEdge, Qt::LeftEdge, Qt::RightEdge, Qt::BottomEdge};
    std::transform(edges.cbegin(), edges.cend(), m_edges.begin(),
                   [this](Qt::Edge edge) { return new WindowEdge(edge, this); });
    m_frameAnimation = new QVariantAnimation(this);
    m_frameAnimation->setObjectName(u"frame"_s);
    m_frameAnimation->setDuration(shortAnimationDuration);
    m_frameAnimation->setEasingCurve(easeInEaseOut());
    connect(m_frameAnimation, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &value) { setGeometry(value.toRect()); });
    const auto *menuKey = new QShortcut(QKeySequence(Qt::ALT | Qt::Key_Space), this);
    connect(menuKey, &QShortcut::activated, this, &INAppStoreWindow::showWindowMenu);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &INAppStoreWindow::updateKeyAndMain);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &INAppStoreWindow::keepReachable, Qt::QueuedConnection);
    applySizeLimits();
    enableButtons();
    layoutTrafficLightsAndContent();
}

void INAppStoreWindow::createTitlebarView()
{
    m_titleBarContainer = new INTitlebarContainer(this);
    setTitleBarView(nullptr);
}

void INAppStoreWindow::createButtons()
{
    // A group of its own, so that the buttons of other windows do not light up with these.
    const QString group = u"app.lumora.window.%1"_s.arg(reinterpret_cast<quintptr>(this), 0, 16);
    const std::array<QString, 4> kinds = {u"close"_s, u"minimize"_s, u"zoom"_s, u"fullscreen"_s};
    for (const ButtonKind kind : {Close, Minimize, Zoom, EnterFullScreen}) {
        m_standardButtons[kind] = new INWindowButton(group, kinds[kind], m_titleBarContainer);
        m_standardButtons[kind]->setObjectName(kinds[kind]);
        connect(m_standardButtons[kind], &QAbstractButton::clicked, this, [this, kind] { pressed(kind); });
    }
    nameButtons();
}

void INAppStoreWindow::nameButtons()
{
    const std::array<QString, 4> names = {
        qtTrId("ACCESSIBLE_CLOSE"), qtTrId("ACCESSIBLE_MINIMIZE"), qtTrId("ACCESSIBLE_ZOOM"),
        isFullScreen() ? qtTrId("ACCESSIBLE_EXIT_FULLSCREEN") : qtTrId("ACCESSIBLE_FULLSCREEN")};
    for (const ButtonKind kind : {Close, Minimize, Zoom, EnterFullScreen}) {
        m_standardButtons[kind]->setAccessibleName(names[kind]);
        m_standardButtons[kind]->setToolTip(names[kind]);
    }
}

QAbstractButton *INAppStoreWindow::button(ButtonKind kind) const
{
    return m_userButtons[kind] ? m_userButtons[kind].data() : m_standardButtons[kind];
}

void INAppStoreWindow::setButton(ButtonKind kind, QAbstractButton *button)
{
    if (m_userButtons[kind] == button)
        return;
    delete m_userButtons[kind];
    m_userButtons[kind] = button;
    m_standardButtons[kind]->setVisible(!button);
    if (button) {
        button->setParent(m_titleBarContainer);
        button->show();
        connect(button, &QAbstractButton::clicked, this, [this, kind] { pressed(kind); });
    }
    enableButtons();
    redisplay();
}

void INAppStoreWindow::pressed(ButtonKind kind)
{
    switch (kind) {
    case Close:
        performClose();
        break;
    case Minimize:
        miniaturize();
        break;
    case Zoom:
        performZoom();
        break;
    case EnterFullScreen:
        toggleFullScreen();
        break;
    }
}

void INAppStoreWindow::showWindowMenu()
{
    auto *menu = new QMenu(this);
    menu->setObjectName(u"windowMenu"_s);
    for (const ButtonKind kind : {Minimize, Zoom, EnterFullScreen, Close}) {
        if (kind == Close)
            menu->addSeparator();
        QAction *action = menu->addAction(m_standardButtons[kind]->toolTip());
        action->setEnabled(button(kind)->isEnabled());
        connect(action, &QAction::triggered, button(kind), &QAbstractButton::click);
    }
    connect(menu, &QMenu::aboutToHide, menu, &QObject::deleteLater);
    menu->popup(mapToGlobal(QPoint(button(Close)->x(), m_titleBarContainer->height())));
    menu->setActiveAction(menu->actions().constFirst());
}

void INAppStoreWindow::enableButtons()
{
    button(Close)->setEnabled(m_styleMask & Closable);
    button(Minimize)->setEnabled(m_styleMask & Miniaturizable && !isFullScreen());
    button(Zoom)->setEnabled(m_styleMask & Resizable && !isFullScreen());
    button(EnterFullScreen)->setEnabled(m_styleMask & Resizable);
    const bool fixed = isFullScreen() || isMaximized();
    for (WindowEdge *edge : m_edges) {
        edge->setVisible(!fixed);
        edge->setResizes(m_styleMask & Resizable);
    }
}

bool INAppStoreWindow::hidesTitleBar() const
{
    return m_hideTitleBarInFullScreen && isFullScreen();
}

void INAppStoreWindow::layoutTrafficLightsAndContent()
{
    const qreal barHeight = hidesTitleBar() ? 0 : m_titleBarHeight;
    const QRectF bar = titleBarRect(size(), m_titleBarHeight);
    m_titleBarContainer->setGeometry(pixelRect(bar, height()));
    m_titleBarView->setGeometry(m_titleBarContainer->rect());

    TrafficLights lights;
    lights.leftMargin = m_trafficLightButtonsLeftMargin;
    lights.topMargin = m_trafficLightButtonsTopMargin;
    lights.separation = m_trafficLightSeparation;
    lights.centered = m_centerTrafficLightButtons;
    lights.vertical = m_verticalTrafficLightButtons;
    for (const ButtonKind kind : {Close, Minimize, Zoom})
        lights.sizes[kind] = button(kind)->size();
    const auto rects = trafficLightRects(lights, bar);
    // The container begins at the window's upper edge, so both have the same coordinates.
    for (const ButtonKind kind : {Close, Minimize, Zoom})
        button(kind)->setGeometry(pixelRect(rects[kind], height()));
    button(EnterFullScreen)
        ->setGeometry(pixelRect(fullScreenButtonRect(button(EnterFullScreen)->size(), fullScreenButtonRightMargin(),
                                                     m_fullScreenButtonTopMargin, m_centerFullScreenButton, bar),
                                height()));
    for (const ButtonKind kind : {Close, Minimize, Zoom, EnterFullScreen})
        button(kind)->raise();

    if (m_contentView)
        m_contentView->setGeometry(pixelRect(contentRectBelowTitleBar(size(), barHeight), height()));
    for (WindowEdge *edge : m_edges) {
        edge->follow();
        edge->raise();
    }
}

void INAppStoreWindow::redisplay()
{
    layoutTrafficLightsAndContent();
    m_titleBarView->update();
}

void INAppStoreWindow::setTitleBarView(QWidget *view)
{
    if (view && view == m_titleBarView)
        return;
    delete m_titleBarView;
    m_titleBarView = view ? view : new INTitlebarView;
    m_titleBarView->setParent(m_titleBarContainer);
    m_titleBarView->lower();
    m_titleBarView->setGeometry(m_titleBarContainer->rect());
    m_titleBarView->show();
}

void INAppStoreWindow::setContentView(QWidget *view)
{
    if (view == m_contentView)
        return;
    delete m_contentView;
    m_contentView = view;
    if (!view)
        return;
    view->setParent(this);
    view->lower();
    view->show();
    layoutTrafficLightsAndContent();
}

QRectF INAppStoreWindow::frame() const
{
    return flippedOnScreen(QRectF(geometry()));
}

void INAppStoreWindow::setFrame(const QRectF &frame, bool display, bool animate)
{
    const QRectF yDown = flippedOnScreen(frame);
    const QRect target(yDown.topLeft().toPoint(), yDown.size().toSize());
    m_frameAnimation->stop();
    if (animate && isVisible()) {
        m_frameAnimation->setStartValue(geometry());
        m_frameAnimation->setEndValue(target);
        m_frameAnimation->start();
    } else {
        setGeometry(target);
    }
    layoutTrafficLightsAndContent();
    if (display)
        update();
}

QRectF INAppStoreWindow::titleFrame(const QSizeF &text) const
{
    const qreal gap = m_trafficLightSeparation;
    qreal left = gap;
    for (const ButtonKind kind : {Close, Minimize, Zoom})
        left = std::max(left, button(kind)->geometry().right() + 1 + gap);
    const qreal right = button(EnterFullScreen)->x() - gap;
    const QRectF bar(QPointF(), QSizeF(m_titleBarContainer->size()));
    return flipped(titleRect(text, bar, left, right, m_verticallyCenterTitle, minimumTitleBarHeight()), bar.height());
}

} // namespace lumora
