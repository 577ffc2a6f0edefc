// SPDX-License-Identifier: MIT
#include "PaletteSaving.h"

#include "foundation/WholeFile.h"

#include <QDir>
#include <QFileInfo>

namespace lumora
{

namespace
{

/// The first component of the first file's path.
QString topOf(const std::vector<PaletteFile> &files)
{
    return files.front().path.section(u'/', 0, 0);
}

bool isTaken(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

} // namespace

Result<QString> savePalette(const Palette &palette, const QString &name, PaletteFormat format, const QString &folder)
{
    const QDir target(folder);
    std::vector<PaletteFile> files = paletteFiles(palette, name, format);
    for (int number = 2; isTaken(target.filePath(topOf(files))); ++number)
        files = paletteFiles(palette, name + u'-' + QString::number(number), format);
    for (const PaletteFile &file : files) {
        const QString path = target.filePath(file.path);
        const QString parent = QFileInfo(path).path();
        if (!QDir().mkpath(parent))
            return Failure{FailureCode::CannotCreateFolder, parent, {}};
        if (Outcome written = writeWholeFile(path, file.content); !written)
            return written.failure();
    }
    return target.filePath(topOf(files));
}

} // namespace lumora
