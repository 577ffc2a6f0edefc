// SPDX-License-Identifier: MIT
// Any files as a project that icons are made for, and as a folder of icons that is checked.
#include "FileTree.h"
#include "icons/check/IconCheck.h"
#include "icons/project/OpenStepList.h"
#include "icons/project/ProjectPlan.h"
#include "icons/today/Motifs.h"

#include <QCoreApplication>
#include <QImage>

#include <cstdlib>

using namespace lumora;

namespace
{

void hold(bool expected)
{
    if (!expected)
        std::abort();
}

const Motifs &motifs()
{
    static const Motifs made = [] {
        QImage picture(1024, 1024, QImage::Format_RGBA8888_Premultiplied);
        picture.fill(Qt::darkCyan);
        TodaySources sources;
        sources.icon = todaySource(picture, QStringLiteral("icon"), SourceFit::Exact).value().artwork;
        return Motifs(std::move(sources), MacForm::Body);
    }();
    return made;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *count, char ***arguments)
{
    // Qt needs it to find its decoders.
    static const QCoreApplication application(*count, *arguments);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArrayView bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    readOpenStepList(bytes.toByteArray());
    const FileTree tree(bytes);
    if (const auto plan = planProjects(tree.path(), motifs(), {})) {
        hold(!plan.value().projects.isEmpty());
        for (const PlannedFile &file : plan.value().files.files)
            hold(tree.holds(tree.path() + QLatin1Char('/') + file.path));
        for (const QString &file : plan.value().files.filesToRemove)
            hold(tree.holds(tree.path() + QLatin1Char('/') + file));
    }
    const auto check = checkIcons(tree.path());
    hold(check.ok());
    for (const QString &path : check.value().checked)
        hold(tree.holds(path));
    return 0;
}
