// SPDX-License-Identifier: MIT
// How long the colour picker takes from the click on its well to its first frame, and to repaint for one step of a drag
// in the wheel. Runs without a screen: QT_QPA_PLATFORM=offscreen.
#include "color/picker/BFColorPickerPopover.h"
#include "color/picker/BFColorPickerViewController.h"
#include "color/picker/BFPopoverColorWell.h"
#include "color/picker/ColorPanel.h"
#include "color/picker/ColorWheel.h"
#include "color/picker/PickerContent.h"
#include "color/picker/PickerPages.h"
#include "resources/Resources.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>

using namespace lumora;

namespace
{

/// Says when its widget was painted.
class FirstPaint final : public QObject
{
public:
    bool painted = false;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        painted = painted || event->type() == QEvent::Paint;
        return false;
    }
};

double secondsSince(std::chrono::steady_clock::time_point start)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

ColorWheel *wheel()
{
    return static_cast<WheelPage *>(ColorPanel::sharedColorPanel()->contentView()->page(PickerMode::Wheel))->wheel();
}

void opens(benchmark::State &state, PickerMode mode)
{
    QWidget window;
    window.resize(900, 660);
    BFPopoverColorWell well(&window);
    well.setGeometry(20, 300, 80, 40);
    window.show();
    QCoreApplication::processEvents();
    for (auto _ : state) {
        ColorPanel::sharedColorPanel()->setMode(mode);
        FirstPaint first;
        ColorPanel::sharedColorPanel()->contentView()->installEventFilter(&first);
        const auto start = std::chrono::steady_clock::now();
        well.performActivationClickWithShiftDown(false);
        while (!first.painted)
            QCoreApplication::processEvents();
        state.SetIterationTime(secondsSince(start));
        BFColorPickerPopover::sharedPopover()->closeWithoutAnimation();
        QCoreApplication::processEvents();
    }
}
BENCHMARK_CAPTURE(opens, wheel, PickerMode::Wheel)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(opens, palettes, PickerMode::Palettes)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The very first opening makes the panel and its content, too.
void opensForTheFirstTime(benchmark::State &state)
{
    QWidget window;
    window.resize(900, 660);
    window.show();
    QCoreApplication::processEvents();
    for (auto _ : state) {
        FirstPaint first;
        const auto start = std::chrono::steady_clock::now();
        auto panel = std::make_unique<ColorPanel>();
        panel->contentView()->installEventFilter(&first);
        panel->orderFront();
        while (!first.painted)
            QCoreApplication::processEvents();
        state.SetIterationTime(secondsSince(start));
    }
}
BENCHMARK(opensForTheFirstTime)->UseManualTime()->Unit(benchmark::kMillisecond);

/// Each step moves the ring, and with it the sliders' colours, the swatch and the code.
void dragsInTheWheel(benchmark::State &state)
{
    ColorPanel *panel = ColorPanel::sharedColorPanel();
    panel->setMode(PickerMode::Wheel);
    panel->orderFront();
    QCoreApplication::processEvents();
    FirstPaint painted;
    wheel()->installEventFilter(&painted);
    // Never where the run before ended: a colour that is not new is not drawn.
    float turn = panel->model()->picked().hsb.hue;
    for (auto _ : state) {
        turn += 0.013F;
        painted.painted = false;
        const auto start = std::chrono::steady_clock::now();
        panel->model()->setPicked(withHsb(panel->model()->picked(), {turn - std::floor(turn), 0.8F, 0.9F}));
        while (!painted.painted)
            QCoreApplication::processEvents();
        state.SetIterationTime(secondsSince(start));
    }
    panel->hide();
}
BENCHMARK(dragsInTheWheel)->UseManualTime()->Unit(benchmark::kMillisecond);

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
