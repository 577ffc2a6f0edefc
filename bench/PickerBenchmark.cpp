// SPDX-License-Identifier: MIT
// The time of the color picker from the click on its well to its first frame, and of a repaint for one step of a drag
// in the wheel. Runs without a screen: QT_QPA_PLATFORM=offscreen.
#include "color/picker/BFColorPickerPopover.h"
#include "color/picker/BFColorPickerViewController.h"
#include "color/picker/BFPopoverColorWell.h"
#include "color/picker/ColorPanel.h"
#include "color/picker/PickerContent.h"
#include "widgets/style/Fonts.h"

#include <QApplication>
#include <QLabel>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <ctime>

using namespace lumora;

namespace
{

/// Records when the picker was painted.
class FirstPaint final : public QObject
{
public:
    bool painted = false;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        painted = painted || (event->type() == QEvent::Paint && qobject_cast<PickerContent *>(watched) != nullptr);
        return false;
    }
};

/// The time since its construction: elapsed time for the benchmark, and processor time, which does not depend on the
/// machine's load.
class Stopwatch
{
public:
    explicit Stopwatch(benchmark::State &state) : m_state(state) {}

    void stop()
    {
        const std::clock_t used = std::clock() - m_processor;
        const auto passed = std::chrono::steady_clock::now() - m_wall;
        m_state.SetIterationTime(std::chrono::duration<double>(passed).count());
        benchmark::Counter &processor = m_state.counters["processor_ms"];
        processor.value += 1000.0 * static_cast<double>(used) / CLOCKS_PER_SEC;
        processor.flags = benchmark::Counter::kAvgIterations;
    }

private:
    benchmark::State &m_state;
    std::clock_t m_processor = std::clock();
    std::chrono::steady_clock::time_point m_wall = std::chrono::steady_clock::now();
};

/// Sleeps while there is nothing to do, so that waiting takes no processor time.
void waitFor(const FirstPaint &first)
{
    while (!first.painted)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

/// A window as in the program: its content has loaded the fonts.
class WindowWithAWell
{
public:
    WindowWithAWell()
    {
        m_window.resize(900, 660);
        QLabel *label = new QLabel(QStringLiteral("For iOS, as UIColor"), &m_window);
        label->setFont(latoRegular(13));
        well.setGeometry(20, 300, 80, 40);
        m_window.show();
        QCoreApplication::processEvents();
    }

    /// From the click until the picker has been painted.
    void open(benchmark::State &state)
    {
        FirstPaint first;
        qApp->installEventFilter(&first);
        Stopwatch stopwatch(state);
        well.performActivationClickWithShiftDown(false);
        waitFor(first);
        stopwatch.stop();
    }

private:
    QWidget m_window;

public:
    BFPopoverColorWell well{&m_window};
};

/// The very first opening in a process makes the panel and its content, too.
void opensForTheFirstTime(benchmark::State &state)
{
    WindowWithAWell window;
    for (auto _ : state)
        window.open(state);
    BFColorPickerPopover::sharedPopover()->closeWithoutAnimation();
}
BENCHMARK(opensForTheFirstTime)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

void opensAgain(benchmark::State &state, PickerMode mode)
{
    WindowWithAWell window;
    for (auto _ : state) {
        ColorPanel::sharedColorPanel()->setMode(mode);
        window.open(state);
        BFColorPickerPopover::sharedPopover()->closeWithoutAnimation();
        QCoreApplication::processEvents();
    }
}
BENCHMARK_CAPTURE(opensAgain, wheel, PickerMode::Wheel)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(opensAgain, palettes, PickerMode::Palettes)->UseManualTime()->Unit(benchmark::kMillisecond);

/// Each step moves the ring, and with it the sliders' colors, the swatch and the code.
void dragsInTheWheel(benchmark::State &state)
{
    ColorPanel *panel = ColorPanel::sharedColorPanel();
    panel->setMode(PickerMode::Wheel);
    panel->orderFront();
    QCoreApplication::processEvents();
    FirstPaint painted;
    panel->contentView()->installEventFilter(&painted);
    // Never at the end of the previous run, since an unchanged color is not drawn.
    float turn = panel->model()->picked().hsb.hue;
    for (auto _ : state) {
        turn += 0.013F;
        painted.painted = false;
        Stopwatch stopwatch(state);
        panel->model()->setPicked(withHsb(panel->model()->picked(), {turn - std::floor(turn), 0.8F, 0.9F}));
        waitFor(painted);
        stopwatch.stop();
    }
    panel->hide();
}
BENCHMARK(dragsInTheWheel)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
