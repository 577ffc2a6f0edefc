// SPDX-License-Identifier: MIT
#include "ChannelRow.h"

#include "ColorSlider.h"
#include "PickerMetrics.h"
#include "PickerModel.h"
#include "widgets/style/Fonts.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int fontSize = 12;

QString suffix(ColorChannel channel)
{
    switch (channel) {
    case ColorChannel::Hue:
        return u"°"_s;
    case ColorChannel::Saturation:
    case ColorChannel::Brightness:
    case ColorChannel::Opacity:
        return u"%"_s;
    default:
        return {};
    }
}

/// The width of the longest of all names, in points, so that every slider begins at the same place.
int labelWidth()
{
    const QFontMetrics font(latoRegular(fontSize));
    int width = 0;
    for (const ColorChannel channel :
         {ColorChannel::Red, ColorChannel::Green, ColorChannel::Blue, ColorChannel::Hue, ColorChannel::Saturation,
          ColorChannel::Brightness, ColorChannel::Gray, ColorChannel::Opacity})
        width = std::max(width, font.horizontalAdvance(ChannelRow::name(channel)));
    return width + 2;
}

} // namespace

ChannelRow::ChannelRow(ColorChannel channel, PickerModel *model, QWidget *parent)
    : QWidget(parent), m_channel(channel), m_model(model), m_slider(new ColorSlider), m_number(new QSpinBox)
{
    auto *label = new QLabel(name(channel));
    label->setFont(latoRegular(fontSize));
    label->setFixedWidth(labelWidth());
    for (QWidget *control : {static_cast<QWidget *>(m_slider), static_cast<QWidget *>(m_number)}) {
        control->setAccessibleName(name(channel));
        control->setToolTip(name(channel));
    }
    m_slider->setRange(0, channelMaximum(channel));
    m_slider->setPageStep(10);
    m_number->setRange(0, channelMaximum(channel));
    m_number->setWrapping(channel == ColorChannel::Hue);
    m_number->setSuffix(suffix(channel));
    m_number->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_number->setFont(latoRegular(fontSize));
    m_number->setFixedSize(metrics::pickerNumberWidth, metrics::pickerFieldHeight);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(metrics::pickerSpacing / 2);
    layout->addWidget(label);
    layout->addWidget(m_slider, 1);
    layout->addWidget(m_number);

    connect(m_slider, &QSlider::valueChanged, this, &ChannelRow::take);
    connect(m_number, &QSpinBox::valueChanged, this, &ChannelRow::take);
    connect(m_model, &PickerModel::pickedChanged, this, &ChannelRow::showPicked);
    showPicked();
}

ChannelRow::~ChannelRow()
{
    // A number field that is deleted while it has the focus reports its unfinished text.
    m_number->disconnect(this);
}

QString ChannelRow::name(ColorChannel channel)
{
    switch (channel) {
    case ColorChannel::Red:
        return qtTrId("COLOR_CHANNEL_RED");
    case ColorChannel::Green:
        return qtTrId("COLOR_CHANNEL_GREEN");
    case ColorChannel::Blue:
        return qtTrId("COLOR_CHANNEL_BLUE");
    case ColorChannel::Hue:
        return qtTrId("COLOR_CHANNEL_HUE");
    case ColorChannel::Saturation:
        return qtTrId("COLOR_CHANNEL_SATURATION");
    case ColorChannel::Brightness:
        return qtTrId("COLOR_CHANNEL_BRIGHTNESS");
    case ColorChannel::Gray:
        return qtTrId("COLOR_CHANNEL_GRAY");
    case ColorChannel::Opacity:
        return qtTrId("COLOR_CHANNEL_OPACITY");
    }
    return {};
}

void ChannelRow::showPicked()
{
    const int number = channelNumber(m_model->picked(), m_channel);
    m_slider->setStops(channelStops(m_model->picked(), m_channel));
    // A number that was only displayed is not read back: a color between two numbers does not change.
    const QSignalBlocker sliderBlocker(m_slider);
    const QSignalBlocker numberBlocker(m_number);
    m_slider->setValue(number);
    m_number->setValue(number);
}

void ChannelRow::take(int number)
{
    m_model->setPicked(withChannel(m_model->picked(), m_channel, number));
}

} // namespace lumora
