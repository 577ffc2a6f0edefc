// SPDX-License-Identifier: MIT
#include "BFPopoverColorWell.h"

#include "BFColorPickerPopover.h"
#include "ColorPanel.h"

#include <QMouseEvent>

namespace lumora
{

namespace
{

bool floatingPanelIsVisible()
{
    return ColorPanel::sharedColorPanelExists() && ColorPanel::sharedColorPanel()->isVisible();
}

} // namespace

BFPopoverColorWell::BFPopoverColorWell(QWidget *parent) : ColorWell(parent)
{
    setup();
}

void BFPopoverColorWell::setup()
{
    m_preferredEdgeForPopover = Qt::RightEdge;
    m_useColorPanelIfAvailable = true;
}

BFColorPickerPopover *BFPopoverColorWell::popover() const
{
    return m_popover;
}

void BFPopoverColorWell::activate(bool exclusive)
{
    if (isActive())
        return;
    if (m_useColorPanelIfAvailable && floatingPanelIsVisible())
        activateAsOrdinaryWell(exclusive);
    else
        activateWithPopover();
}

void BFPopoverColorWell::activateWithPopover()
{
    if (isActive())
        return;
    m_popover = BFColorPickerPopover::sharedPopover();
    m_popover->setColor(color());
    m_popover->showRelativeToRect(geometry(), parentWidget(), m_preferredEdgeForPopover);
    m_popover->setColorWell(this);
    ColorPanel::disablePanel();
    activateAsOrdinaryWell(true);
    ColorPanel::enablePanel();
}

void BFPopoverColorWell::deactivate()
{
    if (!isActive())
        return;
    deactivateAsOrdinaryWell();
    if (m_popover)
        m_popover->setColorWell(nullptr);
    m_popover = nullptr;
}

void BFPopoverColorWell::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !floatingPanelIsVisible()) {
        ColorWell::mousePressEvent(event);
        return;
    }
    deactivate();
    activateWithPopover();
}

void BFPopoverColorWell::hideEvent(QHideEvent *event)
{
    // No color can be picked for a hidden well; a floating panel stays until the well is shown again.
    if (m_popover && m_popover->isShown() && m_popover->colorWell() == this)
        m_popover->closeWithoutAnimation();
    ColorWell::hideEvent(event);
}

} // namespace lumora
