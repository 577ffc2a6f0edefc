// SPDX-License-Identifier: MIT
#include "IconSource.h"

#include "IconCatalogue.h"
#include "foundation/WholeFile.h"
#include "pictures/PictureReader.h"
#include "pictures/pixels/SizeText.h"
#include "resources/Resources.h"

#include <QFile>

namespace lumora
{

Result<QImage> readIconSource(const QString &path)
{
    const Result<QByteArray> bytes = readWholeFile(path, largestPictureFile);
    if (!bytes)
        return bytes.failure();
    return readIconSource(bytes.value(), path);
}

Result<QImage> readIconSource(const QByteArray &bytes, const QString &name)
{
    const Result<QSize> stored = storedPixelSize(bytes, name);
    if (!stored)
        return stored.failure();
    const QSize size = stored.value();
    const auto wanted = static_cast<float>(sourceIconSize);
    if (static_cast<float>(size.width()) != wanted || static_cast<float>(size.height()) != wanted) {
        return Failure{FailureCode::WrongSize, name, pixelsDetail(size)};
    }
    return readPicture(bytes, name);
}

Result<QImage> builtInIcon()
{
    loadResources();
    QFile file(QStringLiteral(":/images/icon_for_test.png"));
    if (!file.open(QIODevice::ReadOnly))
        return Failure{FailureCode::NotFound, file.fileName(), {}};
    return readIconSource(file.readAll(), file.fileName());
}

} // namespace lumora
