// SPDX-License-Identifier: MIT
// The beginning of a benchmark of one pane: texts, pictures and the frame clock are those of the program.
#include "resources/Resources.h"
#include "widgets/style/FrameClock.h"

#include <QApplication>

#include <benchmark/benchmark.h>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const lumora::FrameClock frames;
    lumora::loadResources();
    lumora::installTexts(application, QLocale(QStringLiteral("en")));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
