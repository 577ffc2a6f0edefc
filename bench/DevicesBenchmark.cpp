// SPDX-License-Identifier: MIT
// The time in which the device matrix filters and starts all fades. Runs without a screen: QT_QPA_PLATFORM=offscreen.
#include "devices/DeviceViewController.h"
#include "tests/doubles/RecordingServices.h"
#include "widgets/buttons/CheckboxButton.h"

#include <QApplication>

#include <benchmark/benchmark.h>

using namespace lumora;

namespace
{

/// Only one of seventeen devices has OpenGL 3.0, so ticking and unticking it starts nearly all fades.
void filtersAndStartsTheFades(benchmark::State &state)
{
    RecordingServices services;
    DeviceViewController controller(services.services());
    controller.view()->resize(835, 595);
    controller.view()->show();
    QCoreApplication::processEvents();
    CheckboxButton *box = controller.checkboxes().back();
    for (auto _ : state)
        controller.checkbox_opengl3_checked(box);
}
BENCHMARK(filtersAndStartsTheFades)->Unit(benchmark::kMicrosecond);

} // namespace
