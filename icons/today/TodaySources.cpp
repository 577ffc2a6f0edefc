// SPDX-License-Identifier: MIT
#include "TodaySources.h"

#include "foundation/WholeFile.h"
#include "icons/IconCatalogue.h"
#include "pictures/PictureReader.h"
#include "pictures/pixels/SizeText.h"
#include "pictures/scaling/Resampler.h"
#include "pictures/svg/SvgDrawing.h"
#include "pictures/svg/SvgInspection.h"

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

Result<ReadSource> readDrawing(const QByteArray &bytes, const QString &name)
{
    const Result<std::shared_ptr<const SvgDrawing>> drawing = SvgDrawing::read(bytes, name);
    if (!drawing)
        return drawing.failure();
    ReadSource source{Artwork(drawing.value()), {}};
    if (const QStringList &missing = drawing.value()->notDrawn(); !missing.isEmpty())
        source.derived << Derived{Derivation::NotDrawn, name + u": "_s + missing.join(u", "_s)};
    return source;
}

bool isTaken(QSize size, SourceFit fit)
{
    if (size == QSize(sourceIconSize, sourceIconSize))
        return true;
    return fit == SourceFit::AnySquare && size.width() == size.height() && size.width() >= smallestFittedSource;
}

} // namespace

Result<ReadSource> readTodaySource(const QByteArray &bytes, const QString &name, SourceFit fit)
{
    if (beginsAsSvg(bytes))
        return readDrawing(bytes, name);
    const Result<QSize> stored = storedPixelSize(bytes, name);
    if (!stored)
        return stored.failure();
    if (!isTaken(stored.value(), fit))
        return Failure{FailureCode::WrongSize, name, pixelsDetail(stored.value())};
    const Result<QImage> picture = readPicture(bytes, name);
    return picture ? todaySource(picture.value(), name, fit) : Result<ReadSource>(picture.failure());
}

Result<ReadSource> todaySource(const QImage &picture, const QString &name, SourceFit fit)
{
    if (!isTaken(picture.size(), fit))
        return Failure{FailureCode::WrongSize, name, pixelsDetail(picture.size())};
    if (picture.width() == sourceIconSize)
        return ReadSource{Artwork(picture), {}};
    const Result<QImage> fitted = resample(picture, QSize(sourceIconSize, sourceIconSize), name);
    if (!fitted)
        return fitted.failure();
    return ReadSource{Artwork(fitted.value()),
                      {Derived{Derivation::Fitted, name + u", %1 x %2"_s.arg(picture.width()).arg(picture.height())}}};
}

Result<ReadSource> readTodaySource(const QString &path, SourceFit fit)
{
    const Result<QByteArray> bytes = readWholeFile(path, largestPictureFile);
    if (!bytes)
        return bytes.failure();
    return readTodaySource(bytes.value(), path, fit);
}

} // namespace lumora
