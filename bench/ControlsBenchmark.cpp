// SPDX-License-Identifier: MIT
// A full repaint of every control into a picture of twice the size, which is more than a screen needs; and the
// processor time of the animated progress bar.
#include "widgets/buttons/CheckboxButton.h"
#include "widgets/buttons/HoverButton.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/buttons/ImageButton.h"
#include "widgets/buttons/KBButton.h"
#include "widgets/buttons/RadioButton.h"
#include "widgets/progress/LBProgressBar.h"
#include "widgets/tabs/BFIconTabBar.h"
#include "widgets/textfield/ZKTextField.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <ctime>

using namespace lumora;

namespace
{

constexpr qreal scale = 2;

void repaint(benchmark::State &state, QWidget &control, QSize size)
{
    control.resize(size);
    QImage picture(size * scale, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    control.render(&picture, {}, {}, QWidget::DrawChildren);
    for (auto _ : state)
        control.render(&picture, {}, {}, QWidget::DrawChildren);
}

void checkbox(benchmark::State &state)
{
    CheckboxButton button;
    button.setText(QStringLiteral("Video recording"));
    button.setActive(true);
    repaint(state, button, {160, 24});
}
BENCHMARK(checkbox)->Unit(benchmark::kMicrosecond);

void radio(benchmark::State &state)
{
    RadioButton button;
    button.setText(QStringLiteral("iOS 7+"));
    repaint(state, button, {160, 24});
}
BENCHMARK(radio)->Unit(benchmark::kMicrosecond);

void hoverButton(benchmark::State &state)
{
    HoverButton button;
    button.setText(QStringLiteral("Generate"));
    repaint(state, button, {200, 36});
}
BENCHMARK(hoverButton)->Unit(benchmark::kMicrosecond);

void iconButton(benchmark::State &state)
{
    IconButton button;
    button.setText(QStringLiteral("Feature request"));
    button.setIconName(QStringLiteral("button_icon_featurerequest"));
    repaint(state, button, {200, 36});
}
BENCHMARK(iconButton)->Unit(benchmark::kMicrosecond);

void imageButton(benchmark::State &state)
{
    ImageButton button;
    button.setImageName(QStringLiteral("header_icon"));
    repaint(state, button, {60, 60});
}
BENCHMARK(imageButton)->Unit(benchmark::kMicrosecond);

void bezelledButton(benchmark::State &state)
{
    KBButton button;
    button.setText(QStringLiteral("Default"));
    repaint(state, button, {120, 26});
}
BENCHMARK(bezelledButton)->Unit(benchmark::kMicrosecond);

void progressBar(benchmark::State &state)
{
    LBProgressBar bar;
    bar.setDoubleValue(80);
    repaint(state, bar, {600, 20});
}
BENCHMARK(progressBar)->Unit(benchmark::kMicrosecond);

/// The cost of visible, moving stripes: processor time of the whole process divided by elapsed time.
void animatedProgressBar(benchmark::State &state)
{
    LBProgressBar bar;
    bar.resize(600, 20);
    bar.setDoubleValue(80);
    bar.show();
    bar.startAnimation();
    double share = 0;
    for (auto _ : state) {
        QEventLoop second;
        QTimer::singleShot(std::chrono::seconds(1), &second, &QEventLoop::quit);
        QElapsedTimer passed;
        passed.start();
        const std::clock_t before = std::clock();
        second.exec();
        const double used = static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
        share = std::max(share, used * 1000 / static_cast<double>(passed.elapsed()));
    }
    state.counters["percent of a core"] = 100 * share;
}
BENCHMARK(animatedProgressBar)->Iterations(3)->Unit(benchmark::kMillisecond);

void textField(benchmark::State &state)
{
    ZKTextField field;
    field.setString(QStringLiteral("1024"));
    repaint(state, field, {160, 28});
}
BENCHMARK(textField)->Unit(benchmark::kMicrosecond);

void editedTextField(benchmark::State &state)
{
    ZKTextField field;
    field.setString(QStringLiteral("1024"));
    field.resize(160, 28);
    field.beginEditing();
    repaint(state, field, {160, 28});
}
BENCHMARK(editedTextField)->Unit(benchmark::kMicrosecond);

void iconTabBar(benchmark::State &state)
{
    BFIconTabBar bar;
    QList<BFIconTabBarItem *> items;
    for (const auto *name : {"picker_wheel", "picker_sliders", "picker_palettes", "picker_recent", "picker_pipette"})
        items << BFIconTabBarItem::itemWithIcon(NamedImage(QLatin1String(name)).icon(), {});
    bar.setItems(items);
    repaint(state, bar, {240, 34});
}
BENCHMARK(iconTabBar)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
