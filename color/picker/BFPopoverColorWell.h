// SPDX-License-Identifier: MIT
#pragma once

#include "ColorWell.h"

#include <QPointer>

namespace lumora
{

class BFColorPickerPopover;

/// A color well that opens the picker in a popover beside it instead of as a floating window.
class BFPopoverColorWell final : public ColorWell
{
    Q_OBJECT
    Q_PROPERTY(Qt::Edge preferredEdgeForPopover READ preferredEdgeForPopover WRITE setPreferredEdgeForPopover)
    Q_PROPERTY(bool useColorPanelIfAvailable READ useColorPanelIfAvailable WRITE setUseColorPanelIfAvailable)

public:
    explicit BFPopoverColorWell(QWidget *parent = nullptr);

    /// The side of the well on which the popover opens if there is room.
    Qt::Edge preferredEdgeForPopover() const { return m_preferredEdgeForPopover; }
    void setPreferredEdgeForPopover(Qt::Edge edge) { m_preferredEdgeForPopover = edge; }
    /// Whether the well uses the floating panel instead of a popover if the panel is on screen.
    bool useColorPanelIfAvailable() const { return m_useColorPanelIfAvailable; }
    void setUseColorPanelIfAvailable(bool use) { m_useColorPanelIfAvailable = use; }
    /// The popover while the well is active through it, else null.
    BFColorPickerPopover *popover() const;

    void activate(bool exclusive) override;
    void activateWithPopover();
    void deactivate() override;

protected:
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void setup();

    Qt::Edge m_preferredEdgeForPopover = Qt::LeftEdge;
    bool m_useColorPanelIfAvailable = false;
    QPointer<BFColorPickerPopover> m_popover;
};

} // namespace lumora
