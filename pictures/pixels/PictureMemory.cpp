// SPDX-License-Identifier: MIT
#include "PictureMemory.h"

#include <new>
#include <utility>

namespace lumora
{

QImage newPicture(QSize size, QImage::Format format)
{
    return withPixels(QImage(size, format));
}

QImage withPixels(QImage picture)
{
    if (picture.isNull())
        throw std::bad_alloc();
    return picture;
}

void takeOwnPixels(QImage &picture)
{
    if (picture.isNull())
        return;
    picture.detach();
    if (picture.isNull())
        throw std::bad_alloc();
}

} // namespace lumora
