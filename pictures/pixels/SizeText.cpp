// SPDX-License-Identifier: MIT
#include "SizeText.h"

namespace lumora
{

FailureDetail pixelsDetail(QSize size)
{
    return {"DETAIL_PIXELS",
            {{"[WIDTH]", QString::number(size.width())}, {"[HEIGHT]", QString::number(size.height())}}};
}

FailureDetail pixelsDetail(QSize size, QSize wanted)
{
    return {"DETAIL_PIXELS_NOT_WANTED",
            {{"[WIDTH]", QString::number(size.width())},
             {"[HEIGHT]", QString::number(size.height())},
             {"[WANTED_WIDTH]", QString::number(wanted.width())},
             {"[WANTED_HEIGHT]", QString::number(wanted.height())}}};
}

} // namespace lumora
