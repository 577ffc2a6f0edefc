// SPDX-License-Identifier: MIT
#include "SliderStyle.h"

#include "PassedWheel.h"
#include "widgets/style/Palette.h"

#include <QSlider>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int sliderHeight = 24;

} // namespace

void styleSlider(QSlider *slider, const QColor &handle)
{
    slider->setFixedHeight(sliderHeight);
    slider->setStyleSheet(uR"(
        QSlider::groove:horizontal { height: 4px; border-radius: 2px; background: %1; }
        QSlider::handle:horizontal { width: 16px; margin: -6px 0; border-radius: 8px; background: %2; }
        QSlider::handle:horizontal:focus { border: 2px solid %3; width: 12px; }
    )"_s.arg(palette::panelOutline.name(), handle.name(), palette::focusRing.name()));
    passWheel(slider);
}

} // namespace lumora
