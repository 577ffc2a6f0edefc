// SPDX-License-Identifier: MIT
#pragma once

#include "color/picking/PickedColor.h"

#include <QWidget>

class QSpinBox;

namespace lumora
{

class ColorSlider;
class PickerModel;

/// One channel of the picked color: its name, a slider and its number. Slider and number follow the model and change
/// it.
class ChannelRow final : public QWidget
{
    Q_OBJECT

public:
    /// The model must outlive the row.
    ChannelRow(ColorChannel channel, PickerModel *model, QWidget *parent = nullptr);
    ~ChannelRow() override;

    ColorChannel channel() const { return m_channel; }
    ColorSlider *slider() const { return m_slider; }
    QSpinBox *number() const { return m_number; }

    /// The name of the channel.
    static QString name(ColorChannel channel);

private:
    void showPicked();
    void take(int number);

    ColorChannel m_channel;
    PickerModel *m_model;
    ColorSlider *m_slider;
    QSpinBox *m_number;
};

} // namespace lumora
