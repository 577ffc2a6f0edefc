// SPDX-License-Identifier: MIT
#include "ColorPanel.h"

#include "ColorWell.h"
#include "PickerContent.h"
#include "PickerMetrics.h"
#include "PickerMode.h"
#include "SharedInstance.h"
#include "color/ColorExtensions.h"
#include "widgets/style/AccessibleRole.h"
#include "widgets/tabs/BFIconTabBar.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

namespace lumora
{

namespace
{

SharedInstance<ColorPanel> shared;
bool panelDisabled = false;

} // namespace

ColorPanel *ColorPanel::sharedColorPanel()
{
    return shared.get();
}

bool ColorPanel::sharedColorPanelExists()
{
    return shared.exists();
}

void ColorPanel::disablePanel()
{
    panelDisabled = true;
}

void ColorPanel::enablePanel()
{
    panelDisabled = false;
}

bool ColorPanel::isPanelDisabled()
{
    return panelDisabled;
}

QString ColorPanel::colorText()
{
    return colorDescription(sharedColorPanel()->color());
}

ColorPanel::ColorPanel(QWidget *parent) : QWidget(parent, Qt::Tool), m_contentView(new PickerContent(&m_model))
{
    setAccessibleRole(this, QAccessible::Dialog);
    setWindowTitle(qtTrId("COLOR_PICKER"));
    for (const PickerModeItem &mode : pickerModes())
        m_toolbarItems.append({mode, [mode](ColorPanel &panel) { panel.setMode(mode.mode); }});
    m_toolbar = makePickerTabs(*this, this);
    m_toolbar->setFixedHeight(metrics::pickerTabBarHeight);
    connect(m_toolbar, &BFIconTabBar::action, this, &ColorPanel::tabBarChangedSelection);
    connect(&m_model, &PickerModel::colorChanged, this, &ColorPanel::takePicked);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_toolbar);
    layout->addWidget(m_contentView, 1);
    setMinimumSize(metrics::pickerSize);
    resize(metrics::pickerSize);
}

ColorPanel::~ColorPanel()
{
    // The content may be in the popover, but this panel owns it.
    delete m_contentView;
}

void ColorPanel::setColor(const RgbaColor &color)
{
    m_recentBefore.reset();
    m_givenColor = color;
    m_model.setColor(color);
}

bool ColorPanel::showsAlpha() const
{
    return m_contentView->showsAlpha();
}

void ColorPanel::setShowsAlpha(bool shows)
{
    m_contentView->setShowsAlpha(shows);
}

QString ColorPanel::selectedItemIdentifier() const
{
    for (const ToolbarItem &item : m_toolbarItems) {
        if (item.mode.mode == mode())
            return item.mode.identifier;
    }
    return {};
}

void ColorPanel::setMode(PickerMode mode)
{
    if (mode == m_contentView->mode())
        return;
    rememberColor();
    m_recentBefore.reset();
    m_contentView->setMode(mode);
    emit modeChanged(mode);
}

PickerMode ColorPanel::mode() const
{
    return m_contentView->mode();
}

PickerContent *ColorPanel::contentView() const
{
    return m_contentView;
}

bool ColorPanel::hostsContentView() const
{
    return m_contentView->parentWidget() == this;
}

void ColorPanel::rememberColor()
{
    if (color() == m_givenColor)
        return;
    m_givenColor = color();
    m_recent.add(color());
    m_contentView->setRecentColors(m_recent);
}

void ColorPanel::takePicked(const RgbaColor &color)
{
    // While the recent colors are open, the newest of them follows the pick; a color that is already in the list stays
    // in its place.
    const std::vector<RgbaColor> &known = (m_recentBefore ? *m_recentBefore : m_recent).colors();
    if (mode() == PickerMode::Recent && color != m_givenColor &&
        std::find(known.cbegin(), known.cend(), color) == known.cend()) {
        if (!m_recentBefore)
            m_recentBefore = m_recent;
        m_recent = *m_recentBefore;
        m_recent.add(color);
        m_givenColor = color;
        m_contentView->setRecentColors(m_recent);
    }
    emit colorChanged(color);
}

void ColorPanel::setContentRect(const QRect &rect)
{
    setGeometry(rect.adjusted(0, -metrics::pickerTabBarHeight, 0, 0));
}

void ColorPanel::orderFront(QWidget *above)
{
    if (panelDisabled)
        return;
    takeBackContentView();
    winId();
    if (above != nullptr && above->window()->windowHandle() != nullptr)
        windowHandle()->setTransientParent(above->window()->windowHandle());
    show();
    raise();
}

void ColorPanel::orderOut()
{
    rememberColor();
    hide();
}

void ColorPanel::closeEvent(QCloseEvent *event)
{
    rememberColor();
    QWidget::closeEvent(event);
    // No color could be picked for a well that stayed active, and its next click would be lost.
    ColorWell::deactivateAll();
}

bool ColorPanel::event(QEvent *event)
{
    // The shortcut that closes a window closes this one, before the main window's command gets it.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Close))
        event->accept();
    return QWidget::event(event);
}

void ColorPanel::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape || event->matches(QKeySequence::Close))
        close();
    else
        QWidget::keyPressEvent(event);
}

void ColorPanel::takeBackContentView()
{
    if (hostsContentView())
        return;
    static_cast<QVBoxLayout *>(layout())->addWidget(m_contentView, 1);
    m_contentView->show();
}

void ColorPanel::tabBarChangedSelection()
{
    performSelectedTab(*m_toolbar, *this);
}

} // namespace lumora
