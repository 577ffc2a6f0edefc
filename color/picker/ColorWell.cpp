// SPDX-License-Identifier: MIT
#include "ColorWell.h"

#include "BFColorPickerPopover.h"
#include "ColorPainting.h"
#include "ColorPanel.h"
#include "PickerMetrics.h"
#include "color/ColorCode.h"
#include "widgets/style/Palette.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>

namespace lumora
{

namespace
{

/// The state that all wells of the program share.
struct Wells
{
    QList<ColorWell *> active;
    std::unique_ptr<ColorWell> hidden;
};

Wells &wells()
{
    static Wells shared;
    return shared;
}

constexpr qreal frameWidth = 2;
constexpr QSize preferredSize(90, 44);
/// An unlikely color, so that it differs from picked ones.
constexpr RgbaColor hiddenWellColor{1.0F / 255.0F, 2.0F / 255.0F, 3.0F / 255.0F, 1.0F};

} // namespace

ColorWell::ColorWell(QWidget *parent) : PaintedButton(QAccessible::ColorChooser, parent)
{
    // For keys and screen readers; the pointer activates a well when it is pressed, not released.
    connect(this, &QAbstractButton::clicked, this, [this] { performActivationClickWithShiftDown(false); });
    describeColor();
}

ColorWell::~ColorWell()
{
    wells().active.removeAll(this);
}

void ColorWell::setColor(const RgbaColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    describeColor();
    update();
    // The picker starts from its well's color.
    if (m_active && !m_takesPicked) {
        const QScopedValueRollback telling(m_tellsPicker, true);
        ColorPanel::sharedColorPanel()->setColor(color);
    }
}

void ColorWell::describeColor()
{
    // The color is only painted; a screen reader needs a text.
    setAccessibleDescription(stringFromColor(m_color));
}

void ColorWell::activate(bool exclusive)
{
    if (!m_active)
        activateAsOrdinaryWell(exclusive);
}

void ColorWell::deactivate()
{
    if (m_active)
        deactivateAsOrdinaryWell();
}

void ColorWell::deactivateAll()
{
    ColorPanel::disablePanel();
    auto hidden = std::make_unique<ColorWell>();
    hidden->setColor(hiddenWellColor);
    // Only deactivates the others: the panel keeps its color.
    hidden->joinActiveWells(true);
    hidden->deactivate();
    wells().hidden = std::move(hidden);
    // Null once the panel is deleted, before the application's last widgets.
    static const bool cleared = [] {
        qAddPostRoutine([] { wells().hidden.reset(); });
        return true;
    }();
    Q_UNUSED(cleared)
    ColorPanel::enablePanel();
}

ColorWell *ColorWell::hiddenWell()
{
    return wells().hidden.get();
}

void ColorWell::performActivationClickWithShiftDown(bool shiftDown)
{
    BFColorPickerPopover *popover = BFColorPickerPopover::sharedPopover();
    if (m_active) {
        const bool serves = popover->colorWell() == this;
        deactivate();
        if (serves && popover->isShown())
            popover->close();
        return;
    }
    if (popover->isShown())
        popover->closeWithoutAnimation();
    popover->setTarget(nullptr, {});
    activate(!shiftDown);
}

QSize ColorWell::sizeHint() const
{
    return preferredSize;
}

void ColorWell::activateAsOrdinaryWell(bool exclusive)
{
    joinActiveWells(exclusive);
    ColorPanel *panel = ColorPanel::sharedColorPanel();
    panel->setColor(m_color);
    connect(panel, &ColorPanel::colorChanged, this, &ColorWell::takePickedColor, Qt::UniqueConnection);
    panel->orderFront(this);
}

void ColorWell::deactivateAsOrdinaryWell()
{
    wells().active.removeAll(this);
    m_active = false;
    if (ColorPanel::sharedColorPanelExists())
        disconnect(ColorPanel::sharedColorPanel(), nullptr, this, nullptr);
    update();
}

void ColorWell::joinActiveWells(bool exclusive)
{
    if (exclusive) {
        const QList<ColorWell *> others = wells().active;
        for (ColorWell *other : others) {
            if (other != this)
                other->deactivate();
        }
    }
    if (!m_active)
        wells().active.append(this);
    m_active = true;
    update();
}

void ColorWell::takePickedColor(const RgbaColor &color)
{
    if (m_tellsPicker)
        return;
    const QScopedValueRollback taking(m_takesPicked, true);
    setColor(color);
    emit colorPicked(this);
}

void ColorWell::drawRect(QPainter &painter)
{
    const QRectF frame = QRectF(rect()).adjusted(frameWidth, frameWidth, -frameWidth, -frameWidth);
    paintSwatch(painter, frame.adjusted(frameWidth, frameWidth, -frameWidth, -frameWidth), m_color,
                metrics::swatchCorner);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(m_active ? palette::color : palette::separator, frameWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(frame, metrics::swatchCorner + frameWidth, metrics::swatchCorner + frameWidth);
}

void ColorWell::drawFocusRing(QPainter &painter)
{
    paintFocusRing(painter, QRectF(rect()).adjusted(3, 3, -3, -3), metrics::swatchCorner);
}

void ColorWell::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        performActivationClickWithShiftDown(event->modifiers().testFlag(Qt::ShiftModifier));
    else
        event->ignore();
}

void ColorWell::mouseReleaseEvent(QMouseEvent *event)
{
    // The press has already done everything.
    event->accept();
}

} // namespace lumora
