// SPDX-License-Identifier: MIT
// The settings of the window: a setter that changes something lays the window out again and redraws it.
#include "INAppStoreWindow.h"

#include "INTitlebarContainer.h"
#include "StandardTitleBar.h"

#include <algorithm>

namespace lumora
{

qreal INAppStoreWindow::minimumTitleBarHeight()
{
    return standardTitleBar().height;
}

template <typename Value> void INAppStoreWindow::change(Value &value, const Value &to)
{
    if (value == to)
        return;
    value = to;
    redisplay();
}

void INAppStoreWindow::setTitleBarHeight(qreal height)
{
    const qreal raised = std::max(height, minimumTitleBarHeight());
    if (raised == m_titleBarHeight)
        return;
    m_titleBarHeight = raised;
    applySizeLimits();
    redisplay();
}

qreal INAppStoreWindow::fullScreenButtonRightMargin() const
{
    return m_fullScreenButtonRightMargin.value_or(standardTitleBar().fullScreenButtonRightMargin);
}

void INAppStoreWindow::setTitle(const QString &title)
{
    setWindowTitle(title);
}

void INAppStoreWindow::setMinSize(const QSizeF &size)
{
    m_minSize = size;
    applySizeLimits();
}

void INAppStoreWindow::setMaxSize(const QSizeF &size)
{
    m_maxSize = size;
    applySizeLimits();
}

void INAppStoreWindow::applySizeLimits()
{
    const QSizeF taller(0, m_titleBarHeight - minimumTitleBarHeight());
    if (m_minSize)
        setMinimumSize((*m_minSize + taller).toSize());
    if (m_maxSize)
        setMaximumSize((*m_maxSize + taller).toSize().boundedTo(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)));
}

INAppStoreWindow::StyleMask INAppStoreWindow::styleMask() const
{
    return m_styleMask | (isFullScreen() ? FullScreen : Borderless);
}

void INAppStoreWindow::setStyleMask(StyleMask mask)
{
    mask.setFlag(FullScreen, false);
    if (mask == m_styleMask)
        return;
    m_styleMask = mask;
    enableButtons();
    redisplay();
}

QColor INAppStoreWindow::backgroundColor() const
{
    return QWidget::palette().color(QPalette::Window);
}

void INAppStoreWindow::setBackgroundColor(const QColor &color)
{
    QPalette colors = QWidget::palette();
    colors.setColor(QPalette::Window, color);
    setPalette(colors);
}

void INAppStoreWindow::setDelegate(INAppStoreWindowDelegate *delegate)
{
    m_delegateProxy.setSecondaryDelegate(delegate);
}

void INAppStoreWindow::setDoubleClickPreference(std::shared_ptr<const DoubleClickPreference> preference)
{
    m_doubleClickPreference = std::move(preference);
}

void INAppStoreWindow::setShowsBaselineSeparator(bool shows)
{
    change(m_showsBaselineSeparator, shows);
}

void INAppStoreWindow::setTrafficLightButtonsLeftMargin(qreal margin)
{
    change(m_trafficLightButtonsLeftMargin, margin);
}

void INAppStoreWindow::setTrafficLightButtonsTopMargin(qreal margin)
{
    change(m_trafficLightButtonsTopMargin, margin);
}

void INAppStoreWindow::setTrafficLightSeparation(qreal separation)
{
    change(m_trafficLightSeparation, separation);
}

void INAppStoreWindow::setCenterTrafficLightButtons(bool center)
{
    change(m_centerTrafficLightButtons, center);
}

void INAppStoreWindow::setVerticalTrafficLightButtons(bool vertical)
{
    change(m_verticalTrafficLightButtons, vertical);
}

void INAppStoreWindow::setFullScreenButtonTopMargin(qreal margin)
{
    change(m_fullScreenButtonTopMargin, margin);
}

void INAppStoreWindow::setCenterFullScreenButton(bool center)
{
    change(m_centerFullScreenButton, center);
}

void INAppStoreWindow::setShowsTitle(bool shows)
{
    change(m_showsTitle, shows);
}

void INAppStoreWindow::setShowsTitleInFullscreen(bool shows)
{
    change(m_showsTitleInFullscreen, shows);
}

void INAppStoreWindow::setVerticallyCenterTitle(bool center)
{
    change(m_verticallyCenterTitle, center);
}

void INAppStoreWindow::setTitleFont(const QFont &font)
{
    change(m_titleFont, font);
}

void INAppStoreWindow::setTitleTextColor(const QColor &color)
{
    change(m_titleTextColor, color);
}

void INAppStoreWindow::setTitleTextShadow(const std::optional<TextShadow> &shadow)
{
    change(m_titleTextShadow, shadow);
}

void INAppStoreWindow::setInactiveTitleTextColor(const QColor &color)
{
    change(m_inactiveTitleTextColor, color);
}

void INAppStoreWindow::setInactiveTitleTextShadow(const std::optional<TextShadow> &shadow)
{
    change(m_inactiveTitleTextShadow, shadow);
}

void INAppStoreWindow::setTitleBarStartColor(const QColor &color)
{
    change(m_titleBarStartColor, color);
}

void INAppStoreWindow::setTitleBarEndColor(const QColor &color)
{
    change(m_titleBarEndColor, color);
}

void INAppStoreWindow::setInactiveTitleBarStartColor(const QColor &color)
{
    change(m_inactiveTitleBarStartColor, color);
}

void INAppStoreWindow::setInactiveTitleBarEndColor(const QColor &color)
{
    change(m_inactiveTitleBarEndColor, color);
}

void INAppStoreWindow::setBaselineSeparatorColor(const QColor &color)
{
    change(m_baselineSeparatorColor, color);
}

void INAppStoreWindow::setInactiveBaselineSeparatorColor(const QColor &color)
{
    change(m_inactiveBaselineSeparatorColor, color);
}

void INAppStoreWindow::setFullScreenButtonRightMargin(qreal margin)
{
    change(m_fullScreenButtonRightMargin, std::optional<qreal>(margin));
}

void INAppStoreWindow::setHideTitleBarInFullScreen(bool hide)
{
    if (hide == m_hideTitleBarInFullScreen)
        return;
    m_hideTitleBarInFullScreen = hide;
    m_titleBarContainer->setVisible(!hidesTitleBar());
    redisplay();
}

void INAppStoreWindow::setTitleBarDrawingBlock(const TitleBarDrawingBlock &block)
{
    m_titleBarDrawingBlock = block;
    redisplay();
}

void INAppStoreWindow::setCloseButton(QAbstractButton *button)
{
    setButton(Close, button);
}

void INAppStoreWindow::setMinimizeButton(QAbstractButton *button)
{
    setButton(Minimize, button);
}

void INAppStoreWindow::setZoomButton(QAbstractButton *button)
{
    setButton(Zoom, button);
}

void INAppStoreWindow::setFullScreenButton(QAbstractButton *button)
{
    setButton(EnterFullScreen, button);
}

} // namespace lumora
