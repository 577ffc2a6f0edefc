// SPDX-License-Identifier: MIT
// The drawing times of the widget kit's windows: a popover from the call that shows it to its first pixel, and a full
// repaint of what the windows draw themselves. Runs without a screen: QT_QPA_PLATFORM=offscreen.
#include "widgets/popover/SFBPopover.h"
#include "widgets/style/FrameClock.h"
#include "widgets/window/INAppStoreWindow.h"

#include <QApplication>
#include <QLabel>
#include <QLoggingCategory>
#include <QPainter>

#include <benchmark/benchmark.h>

using namespace lumora;

namespace
{

/// Records when a popover was painted visibly: a fade begins with frames that show nothing.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(const SFBPopover &popover) : m_popover(popover)
    {
        popover.popoverWindow()->popoverWindowFrame()->installEventFilter(this);
    }
    bool painted = false;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        constexpr qreal smallestVisible = 1.0 / 256;
        painted =
            painted || (event->type() == QEvent::Paint && m_popover.popoverWindow()->alphaValue() >= smallestVisible);
        return false;
    }

private:
    const SFBPopover &m_popover;
};

QWidget *message()
{
    auto *content = new QLabel(QStringLiteral("Twelve icons were written to the folder \"icons\"."));
    content->resize(320, 160);
    return content;
}

/// Paints a window into a picture at a scale factor, without caches of the platform.
void repaint(benchmark::State &state, QWidget *widget)
{
    const auto scale = static_cast<qreal>(state.range(0));
    QImage picture(widget->size() * scale, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    widget->render(&picture, {}, {}, {});
    for (auto _ : state)
        widget->render(&picture, {}, {}, {});
}

void showsAFreshPopover(benchmark::State &state)
{
    QWidget parent;
    parent.resize(900, 660);
    parent.show();
    for (auto _ : state) {
        state.PauseTiming();
        auto popover = std::make_unique<SFBPopover>(message());
        FirstPaint first(*popover);
        QCoreApplication::processEvents();
        state.ResumeTiming();
        popover->displayPopoverInWindow(&parent, QPointF(450, 330), true);
        while (!first.painted)
            QCoreApplication::processEvents();
        state.PauseTiming();
        popover.reset();
        state.ResumeTiming();
    }
}

void showsAPopoverAgain(benchmark::State &state)
{
    QWidget parent;
    parent.resize(900, 660);
    parent.show();
    SFBPopover popover(message());
    popover.setAnimates(false);
    FirstPaint first(popover);
    for (auto _ : state) {
        first.painted = false;
        popover.displayPopoverInWindow(&parent, QPointF(450, 330));
        while (!first.painted)
            QCoreApplication::processEvents();
        state.PauseTiming();
        popover.closePopover();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}

void repaintsThePopoversFrame(benchmark::State &state)
{
    SFBPopover popover(message());
    popover.setAnimates(false);
    QWidget parent;
    popover.displayPopoverInWindow(&parent, QPointF(0, 0));
    repaint(state, popover.popoverWindow()->popoverWindowFrame());
}

void repaintsTheTitleBar(benchmark::State &state)
{
    INAppStoreWindow window;
    window.resize(900, 660);
    window.setTitleBarHeight(60);
    window.setShowsTitle(true);
    window.setTitle(QStringLiteral("Lumora"));
    window.show();
    window.activateWindow();
    while (!window.isMainWindow())
        QCoreApplication::processEvents();
    repaint(state, window.titleBarView());
}

BENCHMARK(showsAFreshPopover)->Unit(benchmark::kMillisecond);
BENCHMARK(showsAPopoverAgain)->Unit(benchmark::kMillisecond);
BENCHMARK(repaintsThePopoversFrame)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
BENCHMARK(repaintsTheTitleBar)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const FrameClock frames;
    // The offscreen platform logs for every window that it cannot raise it.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
