// SPDX-License-Identifier: MIT
// The state of the window: closing, miniaturizing, zooming, full screen, key and main status.
#include "INAppStoreWindow.h"

#include "INTitlebarContainer.h"
#include "INWindowButton.h"
#include "INWindowButtonGroup.h"
#include "WindowPlacement.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QWindow>

namespace lumora
{

void INAppStoreWindow::performClose()
{
    close();
}

void INAppStoreWindow::miniaturize()
{
    setWindowState(windowState() | Qt::WindowMinimized);
}

void INAppStoreWindow::performZoom()
{
    if (isMaximized())
        showNormal();
    else
        showMaximized();
}

void INAppStoreWindow::toggleFullScreen()
{
    if (!isFullScreen()) {
        m_wasMaximized = isMaximized();
        showFullScreen();
    } else if (m_wasMaximized) {
        showMaximized();
    } else {
        showNormal();
    }
}

void INAppStoreWindow::windowWillEnterFullScreen()
{
    m_delegateProxy.windowWillEnterFullScreen(this);
    m_titleBarContainer->setVisible(!m_hideTitleBarInFullScreen);
}

void INAppStoreWindow::windowWillExitFullScreen()
{
    m_titleBarContainer->show();
    m_delegateProxy.windowWillExitFullScreen(this);
}

void INAppStoreWindow::windowDidExitFullScreen()
{
    QMetaObject::invokeMethod(this, &INAppStoreWindow::keepReachable, Qt::QueuedConnection);
    m_delegateProxy.windowDidExitFullScreen(this);
}

void INAppStoreWindow::windowStateChanged(Qt::WindowStates before)
{
    const bool wasFullScreen = before & Qt::WindowFullScreen;
    if (isFullScreen() && !wasFullScreen)
        windowWillEnterFullScreen();
    if (!isFullScreen() && wasFullScreen)
        windowWillExitFullScreen();
    enableButtons();
    nameButtons();
    redisplay();
    if (isFullScreen() && !wasFullScreen)
        m_delegateProxy.windowDidEnterFullScreen(this);
    if (!isFullScreen() && wasFullScreen)
        windowDidExitFullScreen();

    const bool wasMiniaturized = before & Qt::WindowMinimized;
    if (isMinimized() == wasMiniaturized)
        return;
    if (isMinimized()) {
        // No leave event comes when a window disappears under the mouse.
        m_standardButtons[Close]->group()->resetMouseCaptures();
        m_delegateProxy.windowDidMiniaturize(this);
    } else {
        m_delegateProxy.windowDidDeminiaturize(this);
    }
}

void INAppStoreWindow::updateKeyAndMain()
{
    const bool key = isActiveWindow();
    bool main = key;
    for (const QWindow *window = QGuiApplication::focusWindow(); window && !main; window = window->transientParent())
        main = window == windowHandle();
    if (main != m_isMain) {
        m_isMain = main;
        main ? becomeMainWindow() : resignMainWindow();
    }
    if (key != m_isKey) {
        m_isKey = key;
        key ? becomeKeyWindow() : resignKeyWindow();
    }
}

void INAppStoreWindow::becomeKeyWindow()
{
    redisplay();
    m_delegateProxy.windowDidBecomeKey(this);
}

void INAppStoreWindow::resignKeyWindow()
{
    redisplay();
    m_delegateProxy.windowDidResignKey(this);
}

void INAppStoreWindow::becomeMainWindow()
{
    redisplay();
    m_delegateProxy.windowDidBecomeMain(this);
}

void INAppStoreWindow::resignMainWindow()
{
    redisplay();
    m_delegateProxy.windowDidResignMain(this);
}

void INAppStoreWindow::keepReachable()
{
    if (isFullScreen() || isMaximized() || !isVisible())
        return;
    QList<QRect> screens;
    const auto all = QGuiApplication::screens();
    for (const QScreen *screen : all)
        screens.append(screen->availableGeometry());
    const QRect reachable = reachableFrame(geometry(), screens, static_cast<int>(m_titleBarHeight));
    if (reachable != geometry())
        setGeometry(reachable);
}

void INAppStoreWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::ActivationChange:
        updateKeyAndMain();
        break;
    case QEvent::WindowStateChange:
        windowStateChanged(static_cast<QWindowStateChangeEvent *>(event)->oldState());
        break;
    case QEvent::WindowTitleChange:
        redisplay();
        break;
    case QEvent::LanguageChange:
        nameButtons();
        break;
    default:
        break;
    }
}

void INAppStoreWindow::closeEvent(QCloseEvent *event)
{
    if (!m_delegateProxy.windowShouldClose(this)) {
        event->ignore();
        return;
    }
    m_delegateProxy.windowWillClose(this);
    event->accept();
}

void INAppStoreWindow::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_standardButtons[Close]->group()->resetMouseCaptures();
}

void INAppStoreWindow::keyPressEvent(QKeyEvent *event)
{
    // Leaves full screen, where the title bar with its button is hidden.
    if (event->key() == Qt::Key_F11 && m_styleMask & Resizable)
        toggleFullScreen();
    else
        QWidget::keyPressEvent(event);
}

void INAppStoreWindow::moveEvent(QMoveEvent *event)
{
    QWidget::moveEvent(event);
    m_delegateProxy.windowDidMove(this);
}

void INAppStoreWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layoutTrafficLightsAndContent();
    m_delegateProxy.windowDidResize(this);
}

void INAppStoreWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (testAttribute(Qt::WA_Moved))
        QMetaObject::invokeMethod(this, &INAppStoreWindow::keepReachable, Qt::QueuedConnection);
}

} // namespace lumora
