// SPDX-License-Identifier: MIT
// How long the device matrix takes to filter and to start every fade. Runs without a screen: QT_QPA_PLATFORM=offscreen.
#include "devices/DeviceViewController.h"
#include "resources/Resources.h"
#include "tests/doubles/RecordingServices.h"
#include "widgets/buttons/CheckboxButton.h"

#include <QApplication>

#include <benchmark/benchmark.h>

using namespace lumora;

namespace
{

/// OpenGL 3.0 leaves one device of seventeen, so that ticking and unticking it starts nearly all fades that there are.
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

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    loadResources();
    installTexts(application, QLocale(QStringLiteral("en")));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
