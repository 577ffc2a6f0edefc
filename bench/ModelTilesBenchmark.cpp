// SPDX-License-Identifier: MIT
// The times of the device tool's side of today with all of its models: one requirement with its effects, a full
// repaint, and the longest frame while it is scrolled. Runs without a screen: QT_QPA_PLATFORM=offscreen.
#include "PaneInView.h"
#include "devices/pane/ModelFilterView.h"
#include "devices/pane/ModelTiles.h"
#include "devices/pane/TodayDevicePane.h"
#include "devices/today/ModelList.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QScrollBar>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>

using namespace lumora;

namespace
{

struct Scene : PaneInView<TodayDevicePane>
{
    Scene() : PaneInView(builtInModels()) {}
};

/// From the press of the switch to the drawn pane, the first time.
void opens(benchmark::State &state)
{
    for (auto _ : state)
        const Scene scene;
}
BENCHMARK(opens)->Unit(benchmark::kMillisecond);

/// Typing into the search judges all models, starts the fades and writes every tool tip.
void filtersAll(benchmark::State &state)
{
    Scene scene;
    bool searches = false;
    for (auto _ : state) {
        searches = !searches;
        scene.pane.filters()->search()->setText(searches ? QStringLiteral("pro") : QString());
    }
}
BENCHMARK(filtersAll)->Unit(benchmark::kMillisecond);

/// The tiles find their places again for another width.
void laysOutAll(benchmark::State &state)
{
    Scene scene;
    // Painting is measured below.
    scene.pane.setUpdatesEnabled(false);
    int width = 835;
    for (auto _ : state) {
        width = width == 835 ? 1035 : 835;
        scene.pane.resize(width, 600);
        QCoreApplication::sendPostedEvents();
    }
}
BENCHMARK(laysOutAll)->Unit(benchmark::kMillisecond);

void drawsAll(benchmark::State &state)
{
    Scene scene;
    for (auto _ : state)
        scene.pane.repaint();
}
BENCHMARK(drawsAll)->Unit(benchmark::kMillisecond);

double processorMilliseconds()
{
    return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

/// From top to bottom by a notch of the wheel each frame. `longest` is the slowest frame in milliseconds, `processor`
/// the slowest in processor time, which hardly depends on the load of the machine.
void scrolls(benchmark::State &state)
{
    Scene scene;
    QScrollBar *bar = scene.pane.tiles()->verticalScrollBar();
    double longest = 0.0;
    double processor = 0.0;
    for (auto _ : state) {
        for (int value = 0; value <= bar->maximum(); value += 60) {
            QElapsedTimer frame;
            frame.start();
            const double before = processorMilliseconds();
            bar->setValue(value);
            QCoreApplication::processEvents();
            processor = std::max(processor, processorMilliseconds() - before);
            longest = std::max(longest, static_cast<double>(frame.nsecsElapsed()) / 1e6);
        }
    }
    state.counters["longest"] = longest;
    state.counters["processor"] = processor;
    state.counters["frames"] = bar->maximum() / 60 + 1;
}
BENCHMARK(scrolls)->Unit(benchmark::kMillisecond);

} // namespace
