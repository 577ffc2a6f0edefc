// SPDX-License-Identifier: MIT
// The times of the color tool's side of today: until its first frame, and one step of a color that changes, with every
// code, verdict and the drawn frame. Runs without a screen: QT_QPA_PLATFORM=offscreen.
#include "PaneInView.h"
#include "color/pane/TodayColorPane.h"

#include <QApplication>

#include <benchmark/benchmark.h>

using namespace lumora;

namespace
{

using Scene = PaneInView<TodayColorPane>;

void opens(benchmark::State &state)
{
    for (auto _ : state)
        const Scene scene;
}
BENCHMARK(opens)->Unit(benchmark::kMillisecond);

void showsTheNextColor(benchmark::State &state)
{
    Scene scene;
    int byte = 0;
    for (auto _ : state) {
        byte = (byte + 1) % 256;
        scene.pane.setColor(wideColorFromBytes(byte, 255 - byte, 128, byte));
        QCoreApplication::processEvents();
    }
}
BENCHMARK(showsTheNextColor)->Unit(benchmark::kMillisecond);

} // namespace
