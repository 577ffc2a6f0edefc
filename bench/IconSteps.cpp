// SPDX-License-Identifier: MIT
// The single steps from a source picture to its icon files, with the sources of bench/make_sources.py: bench_icons
// PHOTO.png DRAWING.png [--benchmark_...]
#include "icons/IconExport.h"
#include "icons/IconSource.h"
#include "icons/RenderedIcons.h"
#include "pictures/png/PngFilter.h"
#include "pictures/png/PngRows.h"
#include "pictures/png/PngSection.h"
#include "pictures/scaling/Resampler.h"

#include <benchmark/benchmark.h>

#include <QFile>

#include <cstdio>
#include <string>
#include <vector>

using namespace lumora;

namespace
{

struct Source
{
    QByteArray file;
    QImage picture;
};

std::vector<int> allSizes()
{
    std::vector<int> sizes;
    for (const PlatformIcons &platform : iconPlatforms) {
        for (const IconEntry &icon : platform.icons)
            sizes.push_back(icon.size);
    }
    return sizes;
}

void decode(benchmark::State &state, const Source &source)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(readIconSource(source.file, {}));
}

void takeApart(benchmark::State &state, const Source &source)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(Resampler(source.picture, {}));
}

void resampleTo(benchmark::State &state, const Source &source)
{
    const Resampler resampler(source.picture, {});
    const int edge = static_cast<int>(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(resampler.scaledTo({edge, edge}));
}

void filter(benchmark::State &state, const Source &source)
{
    const int edge = static_cast<int>(state.range(0));
    const ImageRows rows(resample(source.picture, {edge, edge}, {}).value());
    const RowRange all{0, edge};
    for (auto _ : state)
        benchmark::DoNotOptimize(filteredRows(rows, {&all, 1}, PngFilterChoice::ByEntropy));
}

void encode(benchmark::State &state, const Source &source)
{
    const int edge = static_cast<int>(state.range(0));
    const ImageRows rows(resample(source.picture, {edge, edge}, {}).value());
    qsizetype bytes = 0;
    for (auto _ : state) {
        std::vector<PngSection> sections;
        for (int index = 0; index < pngSectionCount(rows.size()); ++index)
            sections.push_back(makePngSection(rows, index));
        bytes = joinPngSections(rows.size(), sections).size();
    }
    state.counters["bytes"] = static_cast<double>(bytes);
}

void renderAll(benchmark::State &state, const Source &source)
{
    const std::vector<int> sizes = allSizes();
    for (auto _ : state) {
        RenderedIcons icons(source.picture);
        icons.prepare(sizes);
        for (const int size : sizes)
            benchmark::DoNotOptimize(icons.png(size));
    }
}

void declareSteps(const std::string &name, const Source &source)
{
    const auto declare = [&](const char *step, void (*run)(benchmark::State &, const Source &)) {
        return benchmark::RegisterBenchmark((std::string(step) + '/' + name).c_str(), run, source)
            ->Unit(benchmark::kMillisecond);
    };
    declare("decode", decode);
    declare("take apart", takeApart);
    declare("resample", resampleTo)->Arg(57)->Arg(120)->Arg(256)->Arg(512);
    declare("filter", filter)->Arg(57)->Arg(256)->Arg(1024);
    declare("encode", encode)->Arg(57)->Arg(256)->Arg(512)->Arg(1024);
    declare("all sizes", renderAll)->UseRealTime()->MeasureProcessCPUTime();
}

bool load(const char *path, Source &source)
{
    QFile file(QFile::decodeName(path));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    source.file = file.readAll();
    const Result<QImage> picture = readIconSource(source.file, file.fileName());
    if (picture)
        source.picture = picture.value();
    return picture.ok();
}

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    Source photo;
    Source drawing;
    if (argc != 3 || !load(argv[1], photo) || !load(argv[2], drawing)) {
        std::fprintf(stderr, "usage: bench_icons PHOTO.png DRAWING.png   (see bench/make_sources.py)\n");
        return 2;
    }
    declareSteps("photo", photo);
    declareSteps("drawing", drawing);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
