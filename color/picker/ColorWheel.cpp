// SPDX-License-Identifier: MIT
#include "ColorWheel.h"

#include "ColorPainting.h"
#include "ColorWheelAccessible.h"
#include "PickerMetrics.h"
#include "color/picking/Wheel.h"
#include "widgets/style/InstallAccessible.h"
#include "widgets/style/Palette.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr float hueStep = 1.0F / 360.0F;
constexpr float saturationStep = 0.01F;
constexpr float largeStep = 10.0F;

} // namespace

ColorWheel::ColorWheel(PickerModel *model, QWidget *parent) : QWidget(parent), m_model(model)
{
    installAccessible<ColorWheel, ColorWheelAccessible>();
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(qtTrId("COLOR_MODE_WHEEL"));
    setCursor(Qt::CrossCursor);
    connect(m_model, &PickerModel::pickedChanged, this, qOverload<>(&QWidget::update));
    connect(m_model, &PickerModel::pickedChanged, this, &ColorWheel::announce);
}

QPointF ColorWheel::markerCenter() const
{
    const HsbColor &hsb = m_model->picked().hsb;
    return geometryOfWheel().pointAt({hsb.hue, hsb.saturation});
}

QString ColorWheel::valueText() const
{
    QString text = qtTrId("COLOR_WHEEL_VALUE");
    text.replace("[HUE]"_L1, QString::number(channelNumber(m_model->picked(), ColorChannel::Hue)));
    text.replace("[SATURATION]"_L1, QString::number(channelNumber(m_model->picked(), ColorChannel::Saturation)));
    return text;
}

QSize ColorWheel::sizeHint() const
{
    return {metrics::pickerSize.width() - 2 * metrics::pickerMargin,
            metrics::pickerSize.width() - 2 * metrics::pickerMargin};
}

QSize ColorWheel::minimumSizeHint() const
{
    return sizeHint() / 2;
}

bool ColorWheel::event(QEvent *event)
{
    if (m_keyboardFocus.follow(event))
        update();
    return QWidget::event(event);
}

void ColorWheel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF rect = geometryOfWheel().disc();
    painter.drawImage(rect.topLeft(), disc());
    const float brightness = m_model->picked().hsb.brightness;
    if (brightness < 1.0F) {
        painter.setOpacity(1.0 - static_cast<qreal>(brightness));
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::black);
        painter.drawEllipse(rect);
        painter.setOpacity(1.0);
    }
    QRectF marker(0, 0, metrics::wheelMarker, metrics::wheelMarker);
    marker.moveCenter(markerCenter());
    paintMarker(painter, marker);
    if (hasFocus() && m_keyboardFocus.isShown())
        paintFocusRing(painter, rect, rect.width() / 2);
}

void ColorWheel::resizeEvent(QResizeEvent *event)
{
    m_disc = {};
    QWidget::resizeEvent(event);
}

void ColorWheel::mousePressEvent(QMouseEvent *event)
{
    // A press beside the disc is for the window: the picker can be dragged there.
    if (event->button() != Qt::LeftButton || !geometryOfWheel().contains(event->position())) {
        event->ignore();
        return;
    }
    m_dragging = true;
    pick(event->position());
}

void ColorWheel::mouseMoveEvent(QMouseEvent *event)
{
    if (m_dragging)
        pick(event->position());
    else
        event->ignore();
}

void ColorWheel::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_dragging)
        event->ignore();
    m_dragging = false;
}

void ColorWheel::keyPressEvent(QKeyEvent *event)
{
    HsbColor hsb = m_model->picked().hsb;
    const float factor = event->modifiers().testFlag(Qt::ShiftModifier) ? largeStep : 1.0F;
    switch (event->key()) {
    case Qt::Key_Left:
        hsb.hue -= factor * hueStep;
        break;
    case Qt::Key_Right:
        hsb.hue += factor * hueStep;
        break;
    case Qt::Key_Up:
        hsb.saturation += factor * saturationStep;
        break;
    case Qt::Key_Down:
        hsb.saturation -= factor * saturationStep;
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    hsb.hue -= std::floor(hsb.hue);
    hsb.saturation = std::clamp(hsb.saturation, 0.0F, 1.0F);
    m_model->setPicked(withHsb(m_model->picked(), hsb));
}

WheelGeometry ColorWheel::geometryOfWheel() const
{
    return WheelGeometry(QRectF(rect()), metrics::wheelMargin);
}

void ColorWheel::pick(const QPointF &point)
{
    const WheelPosition position = geometryOfWheel().positionAt(point);
    HsbColor hsb = m_model->picked().hsb;
    // The exact middle has no hue; the previous one is kept.
    if (position.saturation > 0.0F)
        hsb.hue = position.hue;
    hsb.saturation = position.saturation;
    m_model->setPicked(withHsb(m_model->picked(), hsb));
}

void ColorWheel::announce()
{
    setAccessibleDescription(valueText());
    QAccessibleValueChangeEvent event(this, channelNumber(m_model->picked(), ColorChannel::Hue));
    QAccessible::updateAccessibility(&event);
}

const QImage &ColorWheel::disc() const
{
    const qreal scale = devicePixelRatioF();
    if (m_disc.isNull() || m_disc.devicePixelRatio() != scale)
        m_disc = wheelImage(geometryOfWheel().radius(), scale);
    return m_disc;
}

} // namespace lumora
